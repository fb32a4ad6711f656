#include "placementrig.h"
#include "rows.h"

#include <QtTest>

namespace {

const QString keyX = QStringLiteral("testWindowPointX");
const QString keyY = QStringLiteral("testWindowPointY");
const QString keyWidth = QStringLiteral("testWindowWidth");
const QString keyHeight = QStringLiteral("testWindowHeight");
const QString keyVisible = QStringLiteral("testWindowVisible");

} // namespace

class TestDrawCtrlFormSettings : public QObject
{
    Q_OBJECT

private slots:
    void emptySettings_startAtTheOriginWith256x256Shown();
    void storedVisibility_isReadAsABool_data();
    void storedVisibility_isReadAsABool();
    void storedSize_isRestored_data();
    void storedSize_isRestored();
    void storedPlace_isRestored_data();
    void storedPlace_isRestored();
    void placeBeyondTheDesktop_survivesARunWithoutAChange();
    void save_writesThePlacementThatARestartComesBackTo();
};

void TestDrawCtrlFormSettings::emptySettings_startAtTheOriginWith256x256Shown()
{
    TestSettings settings;
    PlacementRig rig;
    rig.canvas.setGeometry(77, 66, 55, 44);
    rig.canvas.hide();
    rig.panel = std::make_unique<DrawCtrlForm>(&rig.canvas, settings.get(), nullptr);

    QCOMPARE(rig.canvas.geometry(), QRect(0, 0, 256, 256));
    QCOMPARE(rig.controls(), QRect(0, 0, 256, 256));
    QVERIFY(rig.canvas.isVisible());
    QVERIFY(rig.isHideable());
}

void TestDrawCtrlFormSettings::storedVisibility_isReadAsABool_data()
{
    const Table<QVariant, bool> row("stored", "hidden");
    row("true", true, true);
    row("false", false, false);
    row("text true", QStringLiteral("true"), true);
    row("text false", QStringLiteral("false"), false);
    row("one", 1, true);
    row("zero", 0, false);
    row("empty text", QString(), false);
    row("list", QStringList{QStringLiteral("a"), QStringLiteral("b")}, false);
}

void TestDrawCtrlFormSettings::storedVisibility_isReadAsABool()
{
    QFETCH(QVariant, stored);
    QFETCH(bool, hidden);
    const PlacementRig rig({{keyVisible, stored}});

    QCOMPARE(rig.canvas.isHidden(), hidden);
    QCOMPARE(rig.isHideable(), !hidden);
}

void TestDrawCtrlFormSettings::storedSize_isRestored_data()
{
    const int maxWidth = desktopSums().width();
    const int maxHeight = desktopSums().height();
    const QStringList list{QStringLiteral("3"), QStringLiteral("4")};
    const Table<QVariant, QVariant, QSize> row("width", "height", "size");
    row("square", 300, 300, {300, 300});
    row("higher than wide", 100, 300, {100, 100});
    row("wider than high", 560, 420, {560, 560});
    row("smallest", 1, 1, {1, 1});
    row("width 0", 0, 0, {256, 256});
    row("height below 1", 300, -5, {300, 256});
    row("height missing", 300, QVariant(), {300, 256});
    // The height takes the width as it is stored, which the range lifts to 1.
    row("width missing", QVariant(), 300, {256, 1});
    row("width negative", -7, 300, {256, 1});
    row("beyond the desktop", maxWidth + 1, 300, {maxWidth, maxHeight});
    row("largest int", 2147483647, 2147483647, {maxWidth, maxHeight});
    row("beyond an int", QStringLiteral("99999999999999999999"),
        QStringLiteral("99999999999999999999"), {256, 256});
    row("smallest int", -2147483647 - 1, -2147483647 - 1, {256, 256});
    row("texts", QStringLiteral("wide"), QStringLiteral("high"), {256, 256});
    row("lists", list, list, {256, 256});
    row("bytes", QByteArray("\x00\xff\x01", 3), QByteArray("\xfe"), {256, 256});
}

void TestDrawCtrlFormSettings::storedSize_isRestored()
{
    QFETCH(QVariant, width);
    QFETCH(QVariant, height);
    QFETCH(QSize, size);
    QVariantMap values;
    if (width.isValid())
        values[keyWidth] = width;
    if (height.isValid())
        values[keyHeight] = height;

    const PlacementRig rig(values);

    QCOMPARE(rig.canvas.geometry(), QRect(QPoint(0, 0), size));
    QCOMPARE(rig.controls(), QRect(QPoint(0, 0), size));
    QVERIFY(rig.canvas.isVisible());
}

void TestDrawCtrlFormSettings::storedPlace_isRestored_data()
{
    const int w = desktopSums().width();
    const int h = desktopSums().height();
    const QStringList list{QStringLiteral("3"), QStringLiteral("4")};
    const Table<QVariant, QVariant, QPoint> row("x", "y", "place");
    row("inside", 31, 45, {31, 45});
    row("zero", 0, 0, {0, 0});
    row("left and above", -31, -45, {-31, -45});
    row("at the minimum", 1 - w, 1 - h, {1 - w, 1 - h});
    row("at the maximum", w - 1, h - 1, {w - 1, h - 1});
    row("beyond", w, 99999, {w - 1, h - 1});
    row("largest int", 2147483647, 2147483647, {w - 1, h - 1});
    row("smallest int", -2147483647 - 1, -2147483647 - 1, {1 - w, 1 - h});
    row("texts", QStringLiteral("left"), QStringLiteral("12px"), {0, 0});
    row("numbers as text", QStringLiteral("12"), QStringLiteral("-13"), {12, -13});
    row("lists", list, list, {0, 0});
}

void TestDrawCtrlFormSettings::storedPlace_isRestored()
{
    QFETCH(QVariant, x);
    QFETCH(QVariant, y);
    QFETCH(QPoint, place);
    const PlacementRig rig({{keyX, x}, {keyY, y}});

    QCOMPARE(rig.canvas.pos(), place);
    QCOMPARE(rig.controls().topLeft(), place);
}

// As after a start with a screen unplugged.
void TestDrawCtrlFormSettings::placeBeyondTheDesktop_survivesARunWithoutAChange()
{
    PlacementRig rig(
        {{keyX, 5000}, {keyY, 40}, {keyWidth, 120}, {keyHeight, 120}, {keyVisible, false}});
    const QByteArray before = rig.settings.bytes();
    QVERIFY(before.contains("testWindowPointX=5000"));
    QCOMPARE(rig.canvas.x(), desktopSums().width() - 1);
    rig.panel->getScreenSize();
    rig.close();
    QCOMPARE(rig.settings.bytes(), before);
}

void TestDrawCtrlFormSettings::save_writesThePlacementThatARestartComesBackTo()
{
    PlacementRig rig;
    rig.x()->setValue(100);
    rig.y()->setValue(-50);
    rig.width()->setValue(333);
    rig.height()->setValue(244);
    rig.panel->saveWindowBaseInfo();

    const QVariantMap stored{{keyX, QStringLiteral("100")},
                             {keyY, QStringLiteral("-50")},
                             {keyWidth, QStringLiteral("333")},
                             {keyHeight, QStringLiteral("244")},
                             {keyVisible, QStringLiteral("false")}};
    QCOMPARE(rig.settings.stored(), stored);
    rig.click(rig.hideButton());
    rig.restart();

    QCOMPARE(rig.canvas.geometry(), QRect(100, -50, 333, 333));
    QVERIFY(rig.canvas.isHidden());
}

QTEST_MAIN(TestDrawCtrlFormSettings)
#include "tst_drawctrlform_settings.moc"
