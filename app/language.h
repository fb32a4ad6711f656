#pragma once

#include <QString>

// The interface languages and how the command line chooses one.
namespace Language {

constexpr int count = 6;

// The translation file of a language, for example "en.qm"; index 0 to count - 1.
QString fileName(int index);

// The language's name in its own spelling, for example "русский(ru)".
QString displayName(int index);

// The translation file that the first argument chooses by its first letter: z, e, f,
// d, s or r. Anything else, and no argument, means Chinese.
// Specified: "es" begins with an e and gives English; Spanish is any word that begins with an s.
QString fileNameFor(int argc, const char *const *argv);

// Loads the translation from "ts" beside the program and installs it. A file that is
// missing or unreadable leaves the source texts, which are Chinese, and gives false.
// Where Qt's own translation of the language stands beside it, Qt's dialogs and menus
// speak the language too. The translators live as long as the process.
bool install(const QString &fileName);

} // namespace Language
