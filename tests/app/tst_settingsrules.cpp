#include "rows.h"
#include "settingsrules.h"
#include "testsettings.h"

#include <QtTest>

namespace {

const QLatin1String key("/setting/value");

// A settings file whose "value" is spelled as given.
QByteArray withValue(const QByteArray &spelled)
{
    return "[setting]\nvalue=" + spelled + '\n';
}

} // namespace

class TestSettingsRules : public QObject
{
    Q_OBJECT

private slots:
    void positiveInt_data();
    void positiveInt();
    void nonZeroInt_data();
    void nonZeroInt();
    void missingValue_isTheDefault();

    void color_data();
    void color();
    void colorWrittenAsAColor_isReadBack();

    void store_writesTheValue_data();
    void store_writesTheValue();
    void store_ofWhatTheFileHoldsLeavesItAlone_data();
    void store_ofWhatTheFileHoldsLeavesItAlone();
    void store_ofAnotherValueReplacesIt_data();
    void store_ofAnotherValueReplacesIt();
    void store_ofWhatIsPendingChangesNothing();
};

void TestSettingsRules::positiveInt_data()
{
    const Table<QByteArray, int> row("spelled", "expected");
    row("a value", "12", 12);
    row("the smallest", "1", 1);
    row("the largest", "2147483647", 2147483647);
    row("quoted", "\"12\"", 12);
    row("zero cannot be stored", "0", 50);
    row("negative", "-1", 50);
    row("very negative", "-2147483648", 50);
    row("empty", QByteArray(), 50);
    row("text", "fast", 50);
    row("number and text", "12px", 50);
    row("list", "12, 13", 50);
    row("more than any integer", "99999999999999999999999", 50);
    row("binary", R"(@ByteArray(\0\x1\xff))", 50);
    row("invalid", "@Invalid()", 50);
    row("size", "@Size(12 12)", 50);
}

void TestSettingsRules::positiveInt()
{
    QFETCH(const QByteArray, spelled);
    const TestSettings settings(withValue(spelled));
    QTEST(SettingsRules::positiveInt(*settings.get(), key, 50), "expected");
}

void TestSettingsRules::nonZeroInt_data()
{
    const Table<QVariant, int> row("stored", "expected");
    row("zero", 0, 50);
    row("one", 1, 1);
    row("negative", -7, -7);
    row("greatest", 2147483647, 2147483647);
    row("too great", QStringLiteral("2147483648"), 50);
    row("too small", QStringLiteral("-2147483649"), 50);
    row("text", QStringLiteral("x"), 50);
    row("list", QStringList({QStringLiteral("1"), QStringLiteral("2")}), 50);
}

void TestSettingsRules::nonZeroInt()
{
    QFETCH(const QVariant, stored);
    TestSettings settings({{QStringLiteral("key"), stored}});
    QTEST(SettingsRules::nonZeroInt(*settings.get(), latin1("/setting/key"), 50), "expected");
}

void TestSettingsRules::missingValue_isTheDefault()
{
    const TestSettings settings;
    QCOMPARE(SettingsRules::positiveInt(*settings.get(), key, 50), 50);
    QCOMPARE(SettingsRules::nonZeroInt(*settings.get(), key, 255), 255);
    QVERIFY(!SettingsRules::color(*settings.get(), key).isValid());
}

void TestSettingsRules::color_data()
{
    const Table<QByteArray, QColor> row("spelled", "expected");
    row("hexadecimal", "#00ff00", Qt::green);
    row("name", "magenta", Qt::magenta);
    row("name of another colour", "gold", {255, 215, 0});
    row("empty", QByteArray(), QColor());
    row("text", "no colour", QColor());
    row("list", "1, 2, 3", QColor());
    row("number", "12", QColor());
    row("binary", R"(@ByteArray(\0\x1\xff))", QColor());
    row("invalid", "@Invalid()", QColor());
    row("size", "@Size(12 12)", QColor());
    row("invalid colour", R"(@Variant(\0\0\0\x43\0\xff\xff\0\0\0\0\0\0\0\0))", QColor());
}

void TestSettingsRules::color()
{
    QFETCH(const QByteArray, spelled);
    QFETCH(const QColor, expected);
    const TestSettings settings(withValue(spelled));
    QCOMPARE(SettingsRules::color(*settings.get(), key), expected);
    QCOMPARE(SettingsRules::color(*settings.get(), key).isValid(), expected.isValid());
}

void TestSettingsRules::colorWrittenAsAColor_isReadBack()
{
    for (const QColor &color : {QColor(Qt::red), QColor(Qt::white), QColor(1, 2, 3, 4)}) {
        TestSettings settings;
        SettingsRules::store(*settings.get(), key, color);
        settings->sync();
        settings.reopen();
        QCOMPARE(SettingsRules::color(*settings.get(), key), color);
    }
}

void TestSettingsRules::store_writesTheValue_data()
{
    const Table<QVariant, const char *> row("value", "inFile");
    row("int", 12, "12");
    row("zero", 0, "0");
    row("true", true, "true");
    row("false", false, "false");
    row("text", QStringLiteral("灰度"), "灰度");
}

void TestSettingsRules::store_writesTheValue()
{
    QFETCH(const QVariant, value);
    TestSettings settings;
    SettingsRules::store(*settings.get(), key, value);
    QTEST(settings.stored().value(QStringLiteral("value")).toString(), "inFile");
}

void TestSettingsRules::store_ofWhatTheFileHoldsLeavesItAlone_data()
{
    // With blanks, so that a rewrite shows.
    const Table<QByteArray, QVariant> row("spelled", "value");
    row("int", "  12", 12);
    row("true", "  true", true);
    row("false", "  false", false);
    row("text", "  fast", QStringLiteral("fast"));
}

void TestSettingsRules::store_ofWhatTheFileHoldsLeavesItAlone()
{
    QFETCH(const QByteArray, spelled);
    QFETCH(const QVariant, value);
    const TestSettings settings(withValue(spelled));
    const QByteArray before = settings.bytes();
    SettingsRules::store(*settings.get(), key, value);
    settings->sync();

    QCOMPARE(settings.bytes(), before);
}

void TestSettingsRules::store_ofAnotherValueReplacesIt_data()
{
    const Table<QByteArray, QVariant, const char *> row("spelled", "value", "inFile");
    row("another int", "12", 13, "13");
    row("zero for text", "fast", 0, "0");
    row("zero for nothing", QByteArray(), 0, "0");
    row("zero for invalid", "@Invalid()", 0, "0");
    row("zero for a list", "1, 2", 0, "0");
    row("false for true", "true", false, "false");
    row("false for text", "fast", false, "false");
}

void TestSettingsRules::store_ofAnotherValueReplacesIt()
{
    QFETCH(const QByteArray, spelled);
    QFETCH(const QVariant, value);
    const TestSettings settings(withValue(spelled));
    SettingsRules::store(*settings.get(), key, value);
    QTEST(settings.stored().value(QStringLiteral("value")).toString(), "inFile");
}

void TestSettingsRules::store_ofWhatIsPendingChangesNothing()
{
    TestSettings settings;
    SettingsRules::store(*settings.get(), key, 1);
    SettingsRules::store(*settings.get(), key, 2);
    SettingsRules::store(*settings.get(), key, 2);
    QCOMPARE(settings.stored().value(QStringLiteral("value")).toInt(), 2);
}

QTEST_GUILESS_MAIN(TestSettingsRules)
#include "tst_settingsrules.moc"
