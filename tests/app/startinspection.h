#pragma once

#include <QString>

class MainWindow;

// Looks over a main window that was started with anything in its settings file: the first
// thing that is wrong with it, empty if nothing is.
QString problemOf(MainWindow &window);

// What the operator does first: looks at the windows, and at some patterns.
void stepThrough(MainWindow &window);
