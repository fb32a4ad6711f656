#include "paneltest.h"

#include "dictionary.h"

#include <QFile>
#include <QtTest>

namespace {

// A change has to be in the file within a second; the rest is for a busy machine.
constexpr int savedMs = 1000 + 500;

// Written as nobody but this test writes it, so that a rewrite of the same values shows.
QByteArray byHand(const QByteArray &lines)
{
    return "; by hand\n[setting]\n" + lines;
}

// Whether nothing has been written since the start, and nothing is going to be.
bool isUntouched(AnyPanelRig &rig, const QByteArray &contents)
{
    QCoreApplication::processEvents();
    rig.settings->sync();
    return !rig.isSaveDue() && rig.settings.bytes() == contents;
}

} // namespace

void addWrongValues()
{
    QTest::addColumn<QByteArray>("value");
    for (const char *value :
         {"", "text", "12px", "1, 2, 3", "99999999999999999999999", "-99999999999999999999999",
          R"(@ByteArray(\0\x1\xff\0))", "@Invalid()", "@Rect(9 9 9 9)",
          R"(@Variant(\0\0\0\x43\0\xff\xff\0\0\0\0\0\0\0\0))", R"(@Variant(\0\0\0\x7f))"})
        QTest::newRow(value) << QByteArray(value);
}

void PanelTable::edit(const char *name, const QByteArray &lines, const char *control,
                      const QVariant &value, const char *signalLog, const char *key,
                      const char *expected)
{
    QTest::newRow(name) << lines << QString::fromUtf8(control) << value
                        << QString::fromUtf8(signalLog) << QString::fromLatin1(key)
                        << QString::fromLatin1(expected);
}

void PanelTable::missingFile_staysMissingUntilTheEnd()
{
    const auto rig = start(QByteArray());
    QVERIFY(isUntouched(*rig, QByteArray()));
    QVERIFY(!QFile::exists(rig->settings.path()));

    rig->close();
    const QVariantMap left = rig->settings.stored();
    const QVariantMap expected = facts().defaults;
    QCOMPARE(left.keys(), expected.keys());
    for (auto value = expected.cbegin(); value != expected.cend(); ++value)
        QCOMPARE(left.value(value.key()).toString(), value->toString());
}

void PanelTable::restoring_writesNothing_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("nothing of the panel") << byHand("other = 1\n");
    QTest::newRow("no settings file") << QByteArray("\x7f"
                                                    "ELF\0\1\2\3 garbage ]][[==",
                                                    24);
    QTest::newRow("every key") << byHand(facts().stored);
    const QList<QByteArray> also = facts().alsoStored;
    for (const QByteArray &lines : also)
        QTest::newRow(lines.constData()) << byHand(facts().stored + lines);
}

void PanelTable::restoring_writesNothing()
{
    QFETCH(const QByteArray, contents);
    const auto rig = start(contents);
    QVERIFY(isUntouched(*rig, contents));
}

void PanelTable::wrongNumbers_countAsMissing()
{
    QFETCH(const QByteArray, value);
    const QVariantMap expected = facts().defaults;
    QByteArray lines;
    for (auto key = expected.keyBegin(); key != expected.keyEnd(); ++key)
        lines += key->toLatin1() + " = " + value + '\n';
    const auto rig = start(byHand(lines));

    rig->close();
    const QVariantMap left = rig->settings.stored();
    for (auto each = expected.cbegin(); each != expected.cend(); ++each) {
        if (each->userType() == QMetaType::Int)
            QCOMPARE(left.value(each.key()).toString(), each->toString());
    }
}

void PanelTable::edit_isToldSavedSoonAndRestored_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("signalLog");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    addEdits();
}

void PanelTable::edit_isToldSavedSoonAndRestored()
{
    QFETCH(const QByteArray, lines);
    QFETCH(const QString, control);
    QFETCH(const QVariant, value);
    QFETCH(const QString, key);
    QFETCH(const QString, expected);
    const auto rig = start(byHand(facts().stored + lines));
    rig->operate(control, value);

    QTEST(rig->emitted(), "signalLog");
    QVERIFY(rig->settings.onDisk(key).toString() != expected); // not at once
    QTRY_COMPARE_WITH_TIMEOUT(rig->settings.onDisk(key).toString(), expected, savedMs);

    rig->restart();
    rig->close();
    QCOMPARE(rig->settings.stored().value(key).toString(), expected);
}

void PanelTable::language_isAppliedToEveryText()
{
    const auto rig = start(QByteArray());
    rig->widget()->setStyleSheet(QStringLiteral("QWidget { font-size: 12px; }")); // as the program
    rig->updateLanguage();
    const QStringList chinese = facts().texts.split(QLatin1Char('|'));
    QCOMPARE(rig->texts(), chinese);
    QHash<QString, QString> words;
    for (const QString &text : chinese)
        words[text] = QChar('a' + words.size()); // has room in any label
    {
        const Dictionary dictionary(words);
        rig->updateLanguage();
        QStringList expected;
        for (const QString &text : chinese)
            expected << words.value(text);
        QCOMPARE(rig->texts(), expected);
    }
    rig->updateLanguage();
    QCOMPARE(rig->texts(), chinese);
}

void PanelTable::language_thatDoesNotFitIsElided()
{
    const auto rig = start(QByteArray());
    const QString rest = QStringLiteral(" and on").repeated(20);
    const Dictionary lengthy(rest);
    rig->updateLanguage();
    const auto controls =
        rig->widget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *control : controls) {
        const QString shown = AnyPanelRig::textOf(control);
        if (shown.isEmpty())
            continue;
        const QString whole = control->toolTip();
        QVERIFY2(whole.endsWith(rest), qPrintable(control->objectName()));
        QVERIFY2(shown.endsWith(QChar(0x2026)), qPrintable(shown));
        QVERIFY(whole.startsWith(shown.chopped(1)));
        QVERIFY(control->fontMetrics().boundingRect(shown).width() <= control->width());
    }
}
