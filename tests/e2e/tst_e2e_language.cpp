#include "endtoendtest.h"
#include "rows.h"
#include "waiting.h"

#include <QDir>
#include <QTest>

/// What the program does at start: the language of its first argument, and
/// the folders beside it.
class tst_e2e_language : public EndToEndTest
{
    Q_OBJECT

private slots:
    void firstArgument_choosesTheLanguage_data();
    void firstArgument_choosesTheLanguage();
    void missingTranslations_startInChineseWithoutAMessage();
    void missingPictureFolder_isCreated();

private:
    bool titleIs(const QString &title);
};

namespace {
QString chineseTitle()
{
    return QStringLiteral("显示屏测试工具-Tarn");
}
} // namespace

bool tst_e2e_language::titleIs(const QString &title)
{
    // The program handles events already, so its language is settled; only the
    // way of the title to the X server may take a moment.
    if (waitFor([&] { return tool().controlWindow().title == title; }))
        return true;
    qWarning() << "The title is" << tool().controlWindow().title << "and not" << title;
    return false;
}

void tst_e2e_language::firstArgument_choosesTheLanguage_data()
{
    const Table<QStringList, QString> row("arguments", "title");

    row("none: Chinese", QStringList(), chineseTitle());
    row("en: English", QStringList(QStringLiteral("en")),
        QStringLiteral("LED Screen Test Tool - Tarn"));
    row("a second argument is ignored", QStringList{QStringLiteral("ru"), QStringLiteral("fr")},
        QStringLiteral("Инструмент проверки LED-экранов - Tarn"));
}

void tst_e2e_language::firstArgument_choosesTheLanguage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, title);

    tool().setArguments(arguments);
    QVERIFY(startTool());
    QVERIFY(titleIs(title));
}

void tst_e2e_language::missingTranslations_startInChineseWithoutAMessage()
{
    tool().removeTranslations();
    tool().setArguments({QStringLiteral("en")});
    QVERIFY(startTool());

    QVERIFY(titleIs(chineseTitle()));
    QCOMPARE(tool().mappedWindows().size(), 2);
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
    QCOMPARE(tool().standardError(), QString());
}

void tst_e2e_language::missingPictureFolder_isCreated()
{
    const QDir folder(tool().directory() + QStringLiteral("/BackgroundPicture"));
    QVERIFY(!folder.exists());
    QVERIFY(startTool());
    QVERIFY(folder.exists());
}

QTEST_GUILESS_MAIN(tst_e2e_language)
#include "tst_e2e_language.moc"
