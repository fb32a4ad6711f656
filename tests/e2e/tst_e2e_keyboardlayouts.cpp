#include "endtoendtest.h"
#include "rows.h"
#include "waiting.h"

#include <QProcess>
#include <QTest>

/// The shortcuts with letters work on every keyboard layout.
class tst_e2e_keyboardlayouts : public EndToEndTest
{
    Q_OBJECT

private slots:
    void shortcuts_workOnEveryLayout_data();
    void shortcuts_workOnEveryLayout();
};

void tst_e2e_keyboardlayouts::shortcuts_workOnEveryLayout_data()
{
    const Table<QStringList, QByteArray, QByteArray> row("layout", "f", "h");

    row("Russian", QStringList{QStringLiteral("ru")}, "Cyrillic_a", "Cyrillic_er");
    row("Greek", QStringList{QStringLiteral("gr")}, "Greek_phi", "Greek_eta");
    row("French", QStringList{QStringLiteral("fr")}, "f", "h");
    row("Dvorak", QStringList{QStringLiteral("us"), QStringLiteral("dvorak")}, "f", "h");
}

void tst_e2e_keyboardlayouts::shortcuts_workOnEveryLayout()
{
    QFETCH(QStringList, layout);
    QFETCH(QByteArray, f);
    QFETCH(QByteArray, h);
    QCOMPARE(QProcess::execute(QStringLiteral("setxkbmap"),
                               QStringList{QStringLiteral("-display"), desktop().displayName()}
                                   + layout),
             0);
    desktop().connection().sync();
    QVERIFY(startTool());
    const QRect place = tool().testWindow().geometry;

    desktop().keyboard().key(f.constData(), Qt::ShiftModifier);
    QVERIFY(testWindowCovers(desktop().screen().rect()));
    desktop().keyboard().key(f.constData(), Qt::ShiftModifier);
    QVERIFY(testWindowCovers(place));
    desktop().keyboard().key(h.constData(), Qt::ShiftModifier);
    QVERIFY(waitFor([this] { return !tool().testWindow().isMapped; }));
}

QTEST_GUILESS_MAIN(tst_e2e_keyboardlayouts)
#include "tst_e2e_keyboardlayouts.moc"
