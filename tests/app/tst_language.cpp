#include "language.h"
#include "rows.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
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
    void missingTranslation_leavesTheToolkitInItsOwnLanguage();
    void missingToolkitTranslation_isNoHindrance();
    void ourTexts_comeBeforeTheToolkits();
    void toolkit_speaksTheLanguage_data();
    void toolkit_speaksTheLanguage();
};

namespace {

// The folder of the translations beside the program, as long as it is in scope.
class TranslationFolder
{
public:
    TranslationFolder()
        : m_folder(QCoreApplication::applicationDirPath() + QStringLiteral("/ts"))
    {
        QDir().mkpath(m_folder.path());
    }
    ~TranslationFolder() { m_folder.removeRecursively(); }
    Q_DISABLE_COPY(TranslationFolder)

    void write(const char *name, const char *content) const
    {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    // Puts the program's file in, under another name if one is given.
    void take(const char *name, const char *as = nullptr) const
    {
        QVERIFY(QFile::copy(QStringLiteral(TARN_TRANSLATIONS "/") + QString::fromLatin1(name),
                            m_folder.filePath(QString::fromLatin1(as ? as : name))));
    }

private:
    QDir m_folder;
};

QString ourText()
{
    return QCoreApplication::translate("MainWindow", "显示屏测试工具-Tarn");
}

} // namespace

void TestLanguage::argument_choosesByItsFirstLetter_data()
{
    const Table<QByteArray, const char *> row("argument", "file");
    row("en", "en", "en.qm");
    row("es", "es", "en.qm");
    row("spanish", "spanish", "es.qm");
    row("de", "de", "de.qm");
    row("ru", "ru", "ru.qm");
    row("fr", "fr", "fr.qm");
    row("zh", "zh", "zh_CN.qm");
    row("En", "En", "zh_CN.qm");
    row("x", "x", "zh_CN.qm");
    row("empty", "", "zh_CN.qm");
    row("e", "e", "en.qm");
    row("\xc3\xa9", "\xc3\xa9", "zh_CN.qm");
}

void TestLanguage::argument_choosesByItsFirstLetter()
{
    QFETCH(QByteArray, argument);
    const char *const argv[] = {"program", argument.constData(), nullptr};
    QTEST(Language::fileNameFor(2, argv), "file");
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
    const TranslationFolder folder;
    folder.write("TarnTestTool_en.qm", "no translation at all");
    QVERIFY(!Language::install(QStringLiteral("en.qm")));
}

void TestLanguage::missingTranslation_leavesTheToolkitInItsOwnLanguage()
{
    const TranslationFolder folder;
    folder.take("TarnTestTool_en.qm", "qtbase_en.qm");
    QVERIFY(!Language::install(QStringLiteral("en.qm")));
    QCOMPARE(ourText(), QStringLiteral("显示屏测试工具-Tarn"));
}

void TestLanguage::missingToolkitTranslation_isNoHindrance()
{
    const TranslationFolder folder;
    folder.take("TarnTestTool_en.qm");
    QVERIFY(Language::install(QStringLiteral("en.qm")));
    QCOMPARE(ourText(), QStringLiteral("LED Screen Test Tool - Tarn"));
}

void TestLanguage::ourTexts_comeBeforeTheToolkits()
{
    const TranslationFolder folder;
    folder.take("TarnTestTool_de.qm");
    folder.take("TarnTestTool_fr.qm", "qtbase_de.qm");
    QVERIFY(Language::install(QStringLiteral("de.qm")));
    QCOMPARE(ourText(), QStringLiteral("LED-Bildschirm-Testwerkzeug - Tarn"));
}

void TestLanguage::toolkit_speaksTheLanguage_data()
{
    addNames<QByteArray>("language", {"zh_CN", "fr", "de", "es", "ru"});
}

void TestLanguage::toolkit_speaksTheLanguage()
{
    QFETCH(const QByteArray, language);
    const QByteArray toolkit = "qtbase_" + language + ".qm";
    const QDir installed(QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    if (!installed.exists(QString::fromLatin1(toolkit)))
        QSKIP("Qt's translations are not installed");
    const TranslationFolder folder;
    folder.take("TarnTestTool_" + language + ".qm");
    folder.take(toolkit);

    QVERIFY(Language::install(QString::fromLatin1(language) + QStringLiteral(".qm")));

    const char *const title = "Select Color";
    QVERIFY(QCoreApplication::translate("QColorDialog", title) != QLatin1String(title));
}

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_language.moc"
