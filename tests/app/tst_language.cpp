#include "language.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

class TestLanguage : public QObject
{
    Q_OBJECT

private slots:
    void argument_choosesByItsFirstLetter_data();
    void argument_choosesByItsFirstLetter();
    void noArgument_isChinese();
    void furtherArguments_areIgnored();
    void displayNames_areInTheirOwnSpelling();
    void missingTranslationFolder_installsNothing();
    void brokenTranslationFile_installsNothing();
};

void TestLanguage::argument_choosesByItsFirstLetter_data()
{
    QTest::addColumn<QByteArray>("argument");
    QTest::addColumn<QString>("file");

    const auto row = [](const char *argument, const char *file) {
        QTest::newRow(*argument ? argument : "empty")
            << QByteArray(argument) << QString::fromLatin1(file);
    };
    row("en", "en.qm");
    row("es", "en.qm");
    row("spanish", "es.qm");
    row("de", "de.qm");
    row("ru", "ru.qm");
    row("fr", "fr.qm");
    row("zh", "zh_CN.qm");
    row("En", "zh_CN.qm");
    row("x", "zh_CN.qm");
    row("", "zh_CN.qm");
    row("e", "en.qm");
    row("\xc3\xa9", "zh_CN.qm");
}

void TestLanguage::argument_choosesByItsFirstLetter()
{
    QFETCH(QByteArray, argument);
    QFETCH(QString, file);
    const char *const argv[] = {"program", argument.constData(), nullptr};
    QCOMPARE(Language::fileNameFor(2, argv), file);
}

void TestLanguage::noArgument_isChinese()
{
    const char *const argv[] = {"program", nullptr};
    QCOMPARE(Language::fileNameFor(1, argv), QStringLiteral("zh_CN.qm"));
}

void TestLanguage::furtherArguments_areIgnored()
{
    const char *const argv[] = {"program", "fr", "de", nullptr};
    QCOMPARE(Language::fileNameFor(3, argv), QStringLiteral("fr.qm"));
}

void TestLanguage::displayNames_areInTheirOwnSpelling()
{
    const QStringList expected = {QStringLiteral("中文(zh-cn)"),  QStringLiteral("English(en)"),
                                  QStringLiteral("français(fr)"), QStringLiteral("Deutsch(de)"),
                                  QStringLiteral("español(es)"),  QStringLiteral("русский(ru)")};
    QStringList names;
    for (int index = 0; index < Language::count; ++index)
        names << Language::displayName(index);
    QCOMPARE(names, expected);
}

void TestLanguage::missingTranslationFolder_installsNothing()
{
    QVERIFY(!QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/ts")).exists());
    QVERIFY(!Language::install(QStringLiteral("en.qm")));
    QCOMPARE(QCoreApplication::translate("MainWindow", "窗口"), QStringLiteral("窗口"));
}

void TestLanguage::brokenTranslationFile_installsNothing()
{
    QDir folder(QCoreApplication::applicationDirPath());
    QVERIFY(folder.mkdir(QStringLiteral("ts")));
    QVERIFY(folder.cd(QStringLiteral("ts")));
    QFile file(folder.filePath(QStringLiteral("TarnTestTool_en.qm")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no translation at all");
    file.close();

    const bool installed = Language::install(QStringLiteral("en.qm"));

    QVERIFY(folder.removeRecursively());
    QVERIFY(!installed);
}

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_language.moc"
