#include "endtoendtest.h"
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
    QTest::addColumn<QStringList>("layout");
    QTest::addColumn<QByteArray>("f");
    QTest::addColumn<QByteArray>("h");

    QTest::newRow("Russian") << QStringList{QStringLiteral("ru")} << QByteArray("Cyrillic_a")
                             << QByteArray("Cyrillic_er");
    QTest::newRow("Greek") << QStringList{QStringLiteral("gr")} << QByteArray("Greek_phi")
                           << QByteArray("Greek_eta");
    QTest::newRow("French") << QStringList{QStringLiteral("fr")} << QByteArray("f")
                            << QByteArray("h");
    QTest::newRow("Dvorak") << QStringList{QStringLiteral("us"), QStringLiteral("dvorak")}
                            << QByteArray("f") << QByteArray("h");
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
