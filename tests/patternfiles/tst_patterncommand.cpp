#include "patternprocess.h"

#include <QRegularExpression>
#include <QtTest>

// What TarnTestPattern says: help, and in one line what is wrong; and that it leaves nothing then.
class TestPatternCommand : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_program = std::make_unique<PatternProcess>(); }

    void wrongOptions_areSaidInOneLine_data();
    void wrongOptions_areSaidInOneLine();
    void whatCannotBeWritten_isSaidInOneLine_data();
    void whatCannotBeWritten_isSaidInOneLine();
    void fullDisk_leavesTheFileOfBefore();
    void help_isInEnglishAndComplete();
    void version_isSaid();
    void manual_hasEveryOption();

private:
    QRegularExpressionMatchIterator optionsOfHelp();

    std::unique_ptr<PatternProcess> m_program;
};

namespace {

struct Wrong
{
    const char *command;
    const char *word; // in what is said
};

constexpr Wrong wrongOptions[] = {
    {"", "pattern"},
    {"-o file.png", "pattern"},
    {"circle -o file.png", "circle"},
    {"purity grid -o file.png", "purity, grid"},
    {"purity --config config.ini -o file.png", "--config"},
    {"purity", "-o"},
    {"walk -o", "-o"},
    {"purity -o file.xyz", "file.xyz"},
    {"purity --pink -o file.png", "pink"},
    {"purity --pink --blink -o file.png", "pink, blink"},
    {"purity --levels 32 -o file.png", "--levels"},
    {"purity --frames 3 -o file.png", "--frames"},
    {"walk --grey 3 -o walk", "--grey"},
    {"purity --size 0x100 -o file.png", "32767"},
    {"purity --size 100x0 -o file.png", "32767"},
    {"walk --size 0x0 -o walk", "32767"},
    {"purity --size 32768x100 -o file.png", "32767"},
    {"purity --size 100x32768 -o file.png", "32767"},
    {"purity --size 99999999999x9 -o file.png", "32767"},
    {"purity --size -5x5 -o file.png", "-5x5"},
    {"purity --size 100 -o file.png", "100"},
    {"purity --size 1x2x3 -o file.png", "1x2x3"},
    {"purity --grey 256 -o file.png", "0 to 255"},
    {"purity --grey -1 -o file.png", "0 to 255"},
    {"purity --colour orange -o file.png", "orange"},
    {"gradient --levels 33 -o file.png", "128"},
    {"grid --lines diagonal -o file.png", "slant-left"},
    {"grid --lines horizontal, -o file.png", "slant-left"},
    {"grid --spacing 2 -o file.png", "3 to 700"},
    {"grid --spacing 701 -o file.png", "3 to 700"},
    {"grid --width 6 -o file.png", "1 to 5"},
    {"grid --spacing 20 --offset 20 -o file.png", "0 to 19"},
    {"grid --background blackish -o file.png", "blackish"},
    {"grid --background #12345 -o file.png", "#rrggbb"},
    {"grid --frames 0 -o file.png", "--frames"},
    {"grid --run fast -o file.png", "aging"},
    {"grid --colours red,pink -o file.png", "purple"},
    {"layout --modules 15x16 -o file.png", "16 to 100"},
    {"layout --per-board 101x1 -o file.png", "1 to 100"},
    {"layout --numbers left -o file.png", "from-left"},
    {"layout --first 1,101 -o file.png", "0 to 100"},
    {"layout --number-size 0 -o file.png", "1 to 100"},
    {"layout --number-shape fat -o file.png", "bold"},
    {"layout --number-colour fat -o file.png", "fat"},
    {"layout --module-line 11 -o file.png", "1 to 10"},
    {"layout --board-line 101 -o file.png", "1 to 100"},
    {"layout --picture missing.png -o file.png", "missing.png"},
    {"layout --picture config.ini -o file.png", "config.ini"},
    {"layout --picture= -o file.png", "--picture"},
    {"--config config.ini -o file.png", "--size"},
    {"--config missing.ini -o file.png", "missing.ini"},
    {"--config . -o file.png", "--config"},
};

bool isOneLine(const QByteArray &text)
{
    return text.startsWith("TarnTestPattern: ") && text.indexOf('\n') == text.size() - 1;
}

} // namespace

void TestPatternCommand::wrongOptions_areSaidInOneLine_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("word");

    for (const auto &[command, word] : wrongOptions)
        QTest::newRow(command) << QString::fromLatin1(command) << QString::fromLatin1(word);
}

void TestPatternCommand::wrongOptions_areSaidInOneLine()
{
    QFETCH(QString, command);
    QFETCH(QString, word);
    m_program->add(QStringLiteral("config.ini"), "[setting]\ntestWindowWidth=32768\n");
    m_program->environment.remove(QStringLiteral("XDG_RUNTIME_DIR")); // as in a service
    QCOMPARE(m_program->run(command), 2);
    QVERIFY2(isOneLine(m_program->errors), m_program->errors.constData());
    QVERIFY2(m_program->errors.contains(word.toUtf8()), m_program->errors.constData());
    QCOMPARE(m_program->output, QByteArray());
    QCOMPARE(m_program->files(), QStringList(QStringLiteral("config.ini")));
}

void TestPatternCommand::whatCannotBeWritten_isSaidInOneLine_data()
{
    QTest::addColumn<QString>("command");

    for (const char *command :
         {"purity -o missing/file.png", "purity -o .", "grid --frames 2 -o missing/file.png",
          "--config config.ini -o missing/file.png", "walk -o config.ini", "walk -o /proc/walk"})
        QTest::newRow(command) << QString::fromLatin1(command);
}

void TestPatternCommand::whatCannotBeWritten_isSaidInOneLine()
{
    QFETCH(QString, command);
    m_program->add(QStringLiteral("config.ini"), "[setting]\n");
    QCOMPARE(m_program->run(command), 1);
    QVERIFY2(isOneLine(m_program->errors), m_program->errors.constData());
    QCOMPARE(m_program->files(), QStringList(QStringLiteral("config.ini")));
}

void TestPatternCommand::fullDisk_leavesTheFileOfBefore()
{
    m_program->add(QStringLiteral("old.bmp"), "old");
    for (const char *file : {"old.bmp", "new.bmp"}) {
        // No file may become larger than a block.
        const QString command =
            QStringLiteral("trap '' XFSZ; ulimit -f 1; exec '%1' purity --size 200x200 -o %2")
                .arg(QStringLiteral(TARN_PATTERN_EXECUTABLE), QLatin1String(file));
        QCOMPARE(m_program->start(QStringLiteral("sh"), {QStringLiteral("-c"), command}), 1);
        QVERIFY2(isOneLine(m_program->errors), m_program->errors.constData());
    }
    QCOMPARE(m_program->files(), QStringList(QStringLiteral("old.bmp")));
    QCOMPARE(m_program->bytes(QStringLiteral("old.bmp")), QByteArray("old"));
}

QRegularExpressionMatchIterator TestPatternCommand::optionsOfHelp()
{
    m_program->environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("zh_CN.UTF-8"));
    m_program->run(QStringLiteral("purity --help"));
    static const QRegularExpression option(QStringLiteral("--[a-z-]+(?= |$)"),
                                           QRegularExpression::MultilineOption);
    return option.globalMatch(QString::fromUtf8(m_program->output));
}

void TestPatternCommand::help_isInEnglishAndComplete()
{
    QVERIFY(optionsOfHelp().hasNext());
    QCOMPARE(m_program->errors, QByteArray());
    for (const char *text :
         {"Usage: ", "Writes the test patterns", "purity, gradient, grid, layout, or walk",
          "--size <WxH>", "--output <file>", "--version",
          "purity, grid: Grey level, 0 to 255. [255]"})
        QVERIFY2(m_program->output.contains(text), text);
}

void TestPatternCommand::version_isSaid()
{
    QCOMPARE(m_program->run(QStringLiteral("--version")), 0);
    const QRegularExpression version(
        QStringLiteral("^TarnTestPattern [0-9]+\\.[0-9]+\\.[0-9]+\n$"));
    QVERIFY(version.match(QString::fromUtf8(m_program->output)).hasMatch());
}

void TestPatternCommand::manual_hasEveryOption()
{
    QFile file(QStringLiteral(TARN_MANUAL));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString manual = QString::fromUtf8(file.readAll()).remove(QLatin1Char('\\'));
    for (auto options = optionsOfHelp(); options.hasNext();) {
        const QString option = options.next().captured();
        // At the head of a paragraph, and not as a part of another name.
        const QRegularExpression head(QStringLiteral("^\\.BI? .*%1\\b(?!-)").arg(option),
                                      QRegularExpression::MultilineOption);
        QVERIFY2(head.match(manual).hasMatch(), qPrintable(option));
    }
}

QTEST_GUILESS_MAIN(TestPatternCommand)
#include "tst_patterncommand.moc"
