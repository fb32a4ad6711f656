#pragma once

#include <QRect>
#include <QSignalBlocker>
#include <QVector>
#include <QWidget>

#include <memory>
#include <vector>

class PlaceKeeper;
class QDesktopWidget;
class QSettings;
class SaveSoon;

namespace Ui {
class DrawCtrlForm;
}

// Tab 0: places and sizes the test window on the desktop, shows and hides it, and
// keeps its place from one run to the next.
class DrawCtrlForm : public QWidget
{
    Q_OBJECT

public:
    // Test window and settings are borrowed. Without settings nothing is restored or
    // saved and the test window starts at (0, 0) with 200 x 200 pixels.
    DrawCtrlForm(QWidget *testWindow, QSettings *settings, QWidget *parent);
    ~DrawCtrlForm() override;

    void saveWindowBaseInfo();
    void updateLanguage();

signals:
    // The sums of all screens' widths and of their heights, in pixels.
    void signal_screenMaxSizeChanged(int width, int height);

public slots:
    // Takes the size of the desktop: ranges for the controls, and the signal.
    void getScreenSize();
    void slot_dealScreenChange(int screen);
    void slot_showPushed();
    void slot_HidePushed();
    void slot_enableShowButton();
    void slot_disableShowButton();
    void slot_MoveX(int x);
    void slot_MoveY(int y);
    void slot_resetWidth(unsigned int width);
    void slot_resetHeight(unsigned int height);
    void slot_keyShiftUpPressed();
    void slot_keyShiftDownPressed();
    void slot_keyShiftLeftPressed();
    void slot_keyShiftRightPressed();
    void slot_keyCtrlUpPressed();
    void slot_keyCtrlDownPressed();
    void slot_keyCtrlLeftPressed();
    void slot_keyCtrlRightPressed();
    void slot_drawWidgetSizeChange(int width, int height);
    void slot_drawWidgetPositionChange(int x, int y);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void initSlots();
    void initCtrls();
    void initWindowPosition();
    void followDesktop();
    void setRanges(const QSize &desktopSize);
    std::vector<QSignalBlocker> blockControls();
    void setControls(const QRect &rectangle);
    QRect controlsRectangle() const;
    void restore(const QRect &rectangle);
    QRect adopt(const QRect &rectangle);
    void place(const QRect &rectangle);
    void follow(const QRect &rectangle);
    void setTestWindowShown(bool shown);
    void showVisibility(bool shown);

    const std::unique_ptr<Ui::DrawCtrlForm> ui;
    QWidget *testWindow;
    QSettings *settings;
    QDesktopWidget *desktop = nullptr;
    SaveSoon *m_saveSoon;
    PlaceKeeper *m_keeper;
    QRect m_placement; // asked for by the operator; the controls clip it to the desktop
    QVector<QRect> m_screens; // as they were then
};
