#pragma once

class QStringList;

// The command TarnTestPattern: patterns of the tool as picture files.
namespace PatternCommand {

// Does what the arguments ask for, the program's name first; the exit code: 1 where a file cannot
// be written, 2 where the arguments are wrong. Either is said in one line on the standard error
// output.
int run(const QStringList &arguments);

} // namespace PatternCommand
