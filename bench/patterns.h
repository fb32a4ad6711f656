#pragma once

#include <functional>
#include <memory>
#include <vector>

class DrawerBase;
class QWidget;

// One drawer, set up, and what the operator's run does to it between two paintings.
struct Pattern
{
    std::unique_ptr<DrawerBase> drawer;
    std::function<void()> step;
};

// A row of the benchmark's table.
struct PatternRow
{
    const char *name;
    std::function<Pattern(QWidget *testWindow)> make;
};

const std::vector<PatternRow> &patternRows();
