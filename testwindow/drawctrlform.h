#pragma once

#include "latin1.h"
#include "savesoon.h"
#include "sliderspinboxpair.h"

#include <QRect>
#include <QWidget>

#include <array>
#include <memory>

class PlaceKeeper;
class QDesktopWidget;
class QSettings;

namespace Ui {
class DrawCtrlForm;
}

// Tab 0: places and sizes the test window on the desktop, shows and hides it, and
// keeps its place from one run to the next.
class DrawCtrlForm : public QWidget
{
    Q_OBJECT

public:
    // Named the other way round than it is used: true means hidden, on reading and on writing.
    static constexpr QLatin1String hiddenKey = latin1("/setting/testWindowVisible");

    // Test window and settings are borrowed. Without settings nothing is restored or
    // saved and the test window starts at (0, 0) with 200 x 200 pixels.
    DrawCtrlForm(QWidget *testWindow, QSettings *settings, QWidget *parent);
    ~DrawCtrlForm() override;

    // The test window's size of the settings, whether the desktop has room for it or not.
    QSize storedSize() const { return m_placement.size(); }

    void saveWindowBaseInfo();
    void updateLanguage();

signals:
    // The sums of all screens' widths and of their heights, in pixels.
    void signal_screenMaxSizeChanged(int width, int height);

public slots:
    // Takes the size of the desktop: ranges for the controls, and the signal.
    void getScreenSize();
    void slot_dealScreenChange(int screen);
    // The buttons follow by themselves.
    void slot_showPushed() { testWindow->show(); }
    void slot_HidePushed() { testWindow->hide(); }
    void slot_enableShowButton() { changeVisibility(false); }
    void slot_disableShowButton() { changeVisibility(true); }
    void slot_MoveX(int x);
    void slot_MoveY(int y);
    void slot_resetWidth(unsigned int width);
    void slot_resetHeight(unsigned int height);
    void slot_keyShiftUpPressed() { step(Height, -1); }
    void slot_keyShiftDownPressed() { step(Height, 1); }
    void slot_keyShiftLeftPressed() { step(Width, -1); }
    void slot_keyShiftRightPressed() { step(Width, 1); }
    void slot_keyCtrlUpPressed() { step(Y, -1); }
    void slot_keyCtrlDownPressed() { step(Y, 1); }
    void slot_keyCtrlLeftPressed() { step(X, -1); }
    void slot_keyCtrlRightPressed() { step(X, 1); }
    void slot_drawWidgetSizeChange(int width, int height);
    void slot_drawWidgetPositionChange(int x, int y);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum Pair { X, Y, Width, Height, pairCount };

    void initSlots();
    void initCtrls();
    void initWindowPosition();
    void setRanges(const QSize &desktopSize);
    void setControls(const QRect &rectangle);
    QRect controlsRectangle() const;
    void restore(const QRect &rectangle);
    QRect adopt(const QRect &rectangle);
    void place(const QRect &rectangle);
    void follow(const QRect &rectangle);
    // By one pixel, or not at the end of the range.
    void step(Pair pair, int by) { m_pairs.at(pair).setValue(m_pairs.at(pair).value() + by); }
    void changeVisibility(bool shown);
    void showVisibility(bool shown);

    const std::unique_ptr<Ui::DrawCtrlForm> ui;
    std::array<SliderSpinBoxPair, pairCount> m_pairs;
    QWidget *testWindow;
    QSettings *settings;
    QDesktopWidget *desktop = nullptr;
    SaveSoon m_saveSoon;
    PlaceKeeper *m_keeper;
    QRect m_placement; // asked for by the operator; the controls clip it to the desktop
    bool m_hasRoom = true; // for that, on the present screens
    bool m_areScreensNew = false; // they have changed since anybody moved the test window
};
