#include "endtoendtest.h"
#include "rows.h"
#include "waiting.h"

#include <QTest>

/// The test window is placed, sized, shown and hidden by keys, mouse, buttons
/// and menu, and its panel and "config.ini" know.
class tst_e2e_placement : public EndToEndTest
{
    Q_OBJECT

private slots:
    void arrows_moveAndResizeByOnePixel_data();
    void arrows_moveAndResizeByOnePixel();
    void drag_movesOrResizes_andThePanelFollows_data();
    void drag_movesOrResizes_andThePanelFollows();
    void hidingAndShowing_keepTheButtonsRight_data();
    void hidingAndShowing_keepTheButtonsRight();
    void restart_bringsPlaceSizeAndVisibilityBack();
    void placeBeyondTheScreensEdge_isKept_data();
    void placeBeyondTheScreensEdge_isKept();
    void moveByAnotherProgram_isLeftAlone();
    void keysInFullScreen_areAppliedWhenItEnds();
    void doubleClickWithAMove_leavesTheWindowWhereItWas();

private:
    void startAt(const QRect &place);
    bool isStoredHidden(bool hidden);
    bool becomesHidden(bool hidden);
    void clickPanelAt(const QPoint &place);
    void clickShow() { clickPanelAt(ShowButton); }
    void clickHide() { clickPanelAt(HideButton); }
    void hideByMenu();
    void shiftH();

    /// Centres of the buttons in the control window.
    static constexpr QPoint ShowButton = QPoint(413, 223);
    static constexpr QPoint HideButton = QPoint(509, 223);
};

namespace {
constexpr QRect Start = QRect(200, 150, 256, 256);
/// A change is on the disk within a second; as much again for this test to look.
constexpr int StoreDeadline = 2000;

QString key(const char *name)
{
    return QStringLiteral("/setting/testWindow") + QLatin1String(name);
}
} // namespace

void tst_e2e_placement::startAt(const QRect &place)
{
    QVERIFY(startToolAt(place));
    QVERIFY(testWindowCovers(place));
}

/// The key says "visible" and means hidden.
bool tst_e2e_placement::isStoredHidden(bool hidden)
{
    const auto stored = [this] { return tool().configValue(key("Visible")); };
    return waitFor([&] { return stored().isValid() && stored().toBool() == hidden; },
                   StoreDeadline);
}

bool tst_e2e_placement::becomesHidden(bool hidden)
{
    return waitFor([&] { return tool().testWindow().isMapped != hidden; })
           && isStoredHidden(hidden);
}

void tst_e2e_placement::clickPanelAt(const QPoint &place)
{
    desktop().mouse().click(tool().controlWindow().geometry.topLeft() + place);
}

void tst_e2e_placement::hideByMenu()
{
    desktop().mouse().click(tool().testWindow().geometry.center(), Qt::RightButton);
    WindowInfo menu;
    const auto opens = [&] {
        for (const WindowInfo &window : tool().mappedWindows()) {
            if (window.isPopup)
                menu = window;
        }
        return menu.id != 0;
    };
    QVERIFY(waitFor(opens));
    desktop().mouse().click(menu.geometry.center());
}

void tst_e2e_placement::shiftH()
{
    QVERIFY(tool().focusControlWindow());
    desktop().keyboard().key("h", Qt::ShiftModifier);
}

void tst_e2e_placement::arrows_moveAndResizeByOnePixel_data()
{
    const Table<QByteArray, bool, QRect> row("key", "shift", "place");
    row("Ctrl+Left", "Left", false, Start.translated(-1, 0));
    row("Ctrl+Right", "Right", false, Start.translated(1, 0));
    row("Ctrl+Up", "Up", false, Start.translated(0, -1));
    row("Ctrl+Down", "Down", false, Start.translated(0, 1));
    row("Shift+Left", "Left", true, Start.adjusted(0, 0, -1, 0));
    row("Shift+Right", "Right", true, Start.adjusted(0, 0, 1, 0));
    row("Shift+Up", "Up", true, Start.adjusted(0, 0, 0, -1));
    row("Shift+Down", "Down", true, Start.adjusted(0, 0, 0, 1));
}

void tst_e2e_placement::arrows_moveAndResizeByOnePixel()
{
    QFETCH(QByteArray, key);
    QFETCH(bool, shift);
    QFETCH(QRect, place);
    startAt(Start);

    desktop().keyboard().key(key.constData(), shift ? Qt::ShiftModifier : Qt::ControlModifier);

    QVERIFY(testWindowCovers(place));
    QVERIFY(isStored(place));
}

void tst_e2e_placement::drag_movesOrResizes_andThePanelFollows_data()
{
    const QPoint c = Start.center();
    // By 23 pixels to the left and 17 down.
    const Table<QPoint, QRect> row("from", "place");
    row("inside", c, Start.translated(-23, 17));
    row("left", {Start.left(), c.y()}, Start.adjusted(-23, 0, 0, 0));
    row("right", {Start.right(), c.y()}, Start.adjusted(0, 0, -23, 0));
    row("top", {c.x(), Start.top()}, Start.adjusted(0, 17, 0, 0));
    row("bottom", {c.x(), Start.bottom()}, Start.adjusted(0, 0, 0, 17));
    row("top left", Start.topLeft(), Start.adjusted(-23, 17, 0, 0));
    row("top right", Start.topRight(), Start.adjusted(0, 17, -23, 0));
    row("bottom left", Start.bottomLeft(), Start.adjusted(-23, 0, 0, 17));
    row("bottom right", Start.bottomRight(), Start.adjusted(0, 0, -23, 17));
}

void tst_e2e_placement::drag_movesOrResizes_andThePanelFollows()
{
    QFETCH(QPoint, from);
    QFETCH(QRect, place);
    startAt(Start);

    desktop().mouse().drag(from, from + QPoint(-23, 17));
    QVERIFY(testWindowCovers(place));
    QVERIFY(isStored(place));

    // A key steps on from what the panel shows.
    Keyboard &keyboard = desktop().keyboard();
    for (const char *arrow : {"Right", "Down"}) {
        keyboard.key(arrow, Qt::ControlModifier);
        keyboard.key(arrow, Qt::ShiftModifier);
    }
    const QRect stepped(place.topLeft() + QPoint(1, 1), place.size() + QSize(1, 1));
    QVERIFY(testWindowCovers(stepped));
    QVERIFY(isStored(stepped));
}

void tst_e2e_placement::hidingAndShowing_keepTheButtonsRight_data()
{
    addRows<QByteArray>("hider",
                        {{"button", "button"}, {"Shift+H", "key"}, {"context menu", "menu"}});
}

/// A disabled button does nothing, so each click shows that its button was right.
void tst_e2e_placement::hidingAndShowing_keepTheButtonsRight()
{
    QFETCH(QByteArray, hider);
    const auto hide = [&] {
        if (hider == "button")
            clickHide();
        else if (hider == "key")
            shiftH();
        else
            hideByMenu();
    };
    startAt(Start);

    hide();
    QVERIFY(becomesHidden(true));
    clickShow();
    QVERIFY(becomesHidden(false));

    hide();
    QVERIFY(becomesHidden(true));
    shiftH();
    QVERIFY(becomesHidden(false));
    clickHide();
    QVERIFY(becomesHidden(true));

    clickShow();
    QVERIFY(becomesHidden(false));
    QVERIFY(testWindowCovers(Start));
}

void tst_e2e_placement::restart_bringsPlaceSizeAndVisibilityBack()
{
    startAt(Start);
    Keyboard &keyboard = desktop().keyboard();
    keyboard.key("Right", Qt::ControlModifier);
    keyboard.key("Up", Qt::ControlModifier);
    for (int i = 0; i < 3; ++i)
        keyboard.key("Right", Qt::ShiftModifier);
    keyboard.key("Up", Qt::ShiftModifier);
    const QRect place = QRect(Start.topLeft() + QPoint(1, -1), Start.size() + QSize(3, -1));
    QVERIFY(testWindowCovers(place));
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
    QVERIFY(isStored(place));

    // The stored width serves as the height, too.
    const QRect square(place.topLeft(), QSize(place.width(), place.width()));
    QVERIFY(startTool());
    QVERIFY(testWindowCovers(square));
    shiftH();
    QVERIFY(becomesHidden(true));
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));

    QVERIFY(startTool(ToolProcess::TestWindow::Hidden));
    QVERIFY(isStoredHidden(true));
    clickShow();
    QVERIFY(becomesHidden(false));
    QVERIFY(testWindowCovers(square));
}

void tst_e2e_placement::placeBeyondTheScreensEdge_isKept_data()
{
    addRows<QRect>("place", {{"left and above", {-50, -30, 256, 256}},
                             {"right and below", {1200, 700, 256, 256}}});
}

/// Window managers like to pull a new window on to the screen.
void tst_e2e_placement::placeBeyondTheScreensEdge_isKept()
{
    QFETCH(const QRect, place);
    startAt(place);

    shiftH();
    QVERIFY(becomesHidden(true));
    shiftH();
    QVERIFY(becomesHidden(false));

    QVERIFY(testWindowCovers(place));
    QVERIFY(isStored(place));
}

/// Another program may have its reasons to move the window.
void tst_e2e_placement::moveByAnotherProgram_isLeftAlone()
{
    startAt(Start);
    shiftH();
    QVERIFY(becomesHidden(true));
    shiftH();
    QVERIFY(testWindowCovers(Start) && settle());

    const QRect place = Start.translated(30, 20);
    desktop().windows().move(tool().testWindow().id, place.topLeft());
    QVERIFY(testWindowCovers(place));
    QVERIFY(isStoredHidden(false)); // time enough to be moved back
    QVERIFY(testWindowCovers(place));
}

void tst_e2e_placement::keysInFullScreen_areAppliedWhenItEnds()
{
    startAt(Start);
    Keyboard &keyboard = desktop().keyboard();
    const QRect all = desktop().screen().rect();
    keyboard.key("f", Qt::ShiftModifier);
    QVERIFY(testWindowCovers(all));

    keyboard.key("Right", Qt::ControlModifier);
    keyboard.key("Down", Qt::ControlModifier);
    keyboard.key("Left", Qt::ShiftModifier);
    const QRect place = QRect(Start.topLeft() + QPoint(1, 1), Start.size() - QSize(1, 0));
    QVERIFY(isStored(place));
    QCOMPARE(tool().testWindow().geometry, all);

    keyboard.key("f", Qt::ShiftModifier);
    QVERIFY(testWindowCovers(place));
}

void tst_e2e_placement::doubleClickWithAMove_leavesTheWindowWhereItWas()
{
    startAt(Start);
    const QPoint from = Start.center();
    const QPoint to = from + QPoint(37, 29);
    desktop().mouse().doubleClickAndDrag(from, to);
    QVERIFY(testWindowCovers(desktop().screen().rect()));

    desktop().mouse().doubleClickAndDrag(from, to);
    QVERIFY(testWindowCovers(Start));
    QVERIFY(desktop().windows().answersPing(tool().testWindow().id));
    QCOMPARE(tool().testWindow().geometry, Start);
    QVERIFY2(tool().quit(), qPrintable(tool().problem()));
    QVERIFY(isStored(Start));
}

QTEST_GUILESS_MAIN(tst_e2e_placement)
#include "tst_e2e_placement.moc"
