#include "language.h"

#include <QCoreApplication>
#include <QTranslator>

#include <array>

namespace Language {
namespace {

struct Entry
{
    char letter; // the first letter of the argument that chooses it
    const char *fileName;
    const char *displayName;
};

constexpr std::array<Entry, count> languages{{
    {'z', "zh_CN.qm", "中文(zh-cn)"},
    {'e', "en.qm", "English(en)"},
    {'f', "fr.qm", "français(fr)"},
    {'d', "de.qm", "Deutsch(de)"},
    {'s', "es.qm", "español(es)"},
    {'r', "ru.qm", "русский(ru)"},
}};

const Entry &entry(int index)
{
    return languages.at(static_cast<std::size_t>(index));
}

} // namespace

QString fileName(int index)
{
    return QString::fromUtf8(entry(index).fileName);
}

QString displayName(int index)
{
    return QString::fromUtf8(entry(index).displayName);
}

QString fileNameFor(int argc, const char *const *argv)
{
    const char letter = argc >= 2 ? argv[1][0] : '\0';
    for (int index = 0; index < count; ++index) {
        if (entry(index).letter == letter)
            return fileName(index);
    }
    return fileName(0);
}

bool install(const QString &fileName)
{
    // Never deleted, so that no text is lost on the way out; static, so that they are not leaked.
    static auto *const translator = new QTranslator;
    static auto *const toolkitTranslator = new QTranslator;
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/ts/");
    if (!translator->load(folder + QStringLiteral("TarnTestTool_") + fileName))
        return false;
    // First, so that it is asked last.
    if (toolkitTranslator->load(folder + QStringLiteral("qtbase_") + fileName))
        QCoreApplication::installTranslator(toolkitTranslator);
    return QCoreApplication::installTranslator(translator);
}

} // namespace Language
