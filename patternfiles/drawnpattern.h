#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>

class DrawContainer;
class DrawerBase;
class Options;

// One pattern as the options say.
struct DrawnPattern
{
    // Notes there what is wrong with the options. The window shows the pattern.
    DrawnPattern(Options &options, DrawContainer &window);
    ~DrawnPattern();
    Q_DISABLE_COPY(DrawnPattern)

    std::unique_ptr<DrawerBase> drawer;
    std::function<void()> step = [] {}; // one of the run, where there is one
};
