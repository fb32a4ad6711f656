#include "endtoendtest.h"
#include "waiting.h"

#include <QDir>
#include <QFile>
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
    void existingPictureFolder_isLeftUntouched();

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
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("title");

    const QString english = QStringLiteral("LED Screen Test Tool - Tarn");
    const QString spanish = QStringLiteral("Herramienta de prueba de pantallas LED - Tarn");
    const auto one = [](const char *argument) {
        return QStringList(QString::fromLatin1(argument));
    };
    QTest::newRow("none: Chinese") << QStringList() << chineseTitle();
    QTest::newRow("en: English") << one("en") << english;
    QTest::newRow("es: English") << one("es") << english;
    QTest::newRow("spanish: Spanish") << one("spanish") << spanish;
    QTest::newRow("de: German") << one("de")
                                << QStringLiteral("LED-Bildschirm-Testwerkzeug - Tarn");
    QTest::newRow("ru: Russian") << one("ru")
                                 << QStringLiteral("Инструмент проверки LED-экранов - Tarn");
    QTest::newRow("fr: French") << one("fr") << QStringLiteral("Outil de test d'écran LED - Tarn");
    QTest::newRow("zh: Chinese") << one("zh") << chineseTitle();
    QTest::newRow("En: Chinese") << one("En") << chineseTitle();
    QTest::newRow("x: Chinese") << one("x") << chineseTitle();
    QTest::newRow("empty: Chinese") << one("") << chineseTitle();
    QTest::newRow("a second argument is ignored")
        << QStringList{QStringLiteral("en"), QStringLiteral("fr")} << english;
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

void tst_e2e_language::existingPictureFolder_isLeftUntouched()
{
    const QDir folder(tool().directory() + QStringLiteral("/BackgroundPicture"));
    QVERIFY(folder.mkpath(QStringLiteral(".")));
    const QByteArray content("not to be touched");
    QFile picture(folder.filePath(QStringLiteral("picture")));
    QVERIFY(picture.open(QIODevice::WriteOnly));
    QCOMPARE(picture.write(content), qint64(content.size()));
    picture.close();

    QVERIFY(startTool());
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));

    QCOMPARE(folder.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden),
             QStringList(QStringLiteral("picture")));
    QVERIFY(picture.open(QIODevice::ReadOnly));
    QCOMPARE(picture.readAll(), content);
}

QTEST_GUILESS_MAIN(tst_e2e_language)
#include "tst_e2e_language.moc"
