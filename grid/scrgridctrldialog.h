#pragma once

#include "controlbase.h"
#include "griddrawer.h"
#include "runindicator.h"
#include "sliderspinboxpair.h"

#include <QColor>
#include <QDialog>
#include <QLatin1String>
#include <QVector>

#include <array>
#include <memory>

class MixSelection;
class QPushButton;
class QSettings;
class QTimer;
class SaveSoon;
class SwatchRow;

namespace Ui {
class ScrTestDialog;
}

// Tab 3, the grid test: lines of four families in one of seven colours. A timer scrolls them,
// or shows full-screen colours in turn (the aging test), or colours and families in turn (the
// merged test).
class ScrGridCtrlDialog
    : public QDialog
    , public ControlBase
{
    Q_OBJECT

public:
    // Test window and settings are borrowed. Without settings nothing is restored or saved.
    ScrGridCtrlDialog(QWidget *testWindow, QSettings *settings, QWidget *parent);
    ~ScrGridCtrlDialog() override;

    // Makes the drawer inactive and disables what sets the run, until a control is used again.
    DrawerBase *getDrawer() override;

    bool getScroll() const { return isScroll; }
    bool getScrollEnabled() const { return isScroll; }
    void setScroll(bool on) { isScroll = on; }
    void setScrollEnabled(bool on);

    // Speed and grey can be set, and the lines scroll.
    void enableAdvanceSettings();
    void disableAdvanceSettings();

    // Each remembers this family alone as pressed, despite its name.
    void isHorizontalPressTrue() { rememberAlone(0); }
    void isVerticalPressTrue() { rememberAlone(1); }
    void isSlantLeftPressTrue() { rememberAlone(2); }
    void isSlantRightPressTrue() { rememberAlone(3); }

    // Counts the line steps of the merged cycle and makes them all pending.
    int getSelectedHVLRCount();

    // Presses the buttons of the remembered families again.
    void gridBtnClick();
    // The page keys have left this panel.
    void canclePageUpDownSelect();

    // For the end of the program: pushButtonPauseChecked becomes what is saved.
    void saveGridBaseInfo();
    // The same in a running program, which goes by pushButtonPauseChecked as it was restored.
    void saveWhileRunning();
    // Takes what the merged test shows from the settings.
    void initMixSettings();
    // Replaces the timer by one for the present mode; speed is 1 to 100.
    void initTimer(int speed);
    void updateLanguage();

    // The selected colour in the colour table, and the line family: 0 horizontal, 1 vertical,
    // 2 slant left, 3 slant right. The page keys set them, within 0 to 3, and then call
    // slot_changeColorByPageDown().
    qint16 colorIndex = 0;
    qint16 lineIndex = 0;

    // The run was paused when it was last saved, or when the program was closed before.
    bool pushButtonPauseChecked = false;

    // Set nowhere; the main window heeds it all the same. Wanted.
    bool scrollLocked = false;

signals:
    void signal_colorChanged(const QColor &color);
    // The aging or the merged test shows this colour, here before dimming.
    void signal_oldMixColorChanged(const QColor &color);
    void signal_greyChanged(const QString &grey);
    // The run goes on by a step.
    void signal_gridAutoChange();

public slots:
    void slot_keyUpPressed();
    void slot_keyDownPressed();
    void slot_keyLeftPressed();
    void slot_keyRightPressed();
    void slot_keyInsertPressed();
    void slot_keyDeletePressed();
    // A colour outside the colour table is ignored.
    void slot_changeSelectedGridColor(const QColor &color);
    // Shows the colour and the line family of the two indices, whichever way the page keys
    // have gone.
    void slot_changeColorByPageDown();
    void slot_stopStartPauseStatus();
    void slot_stopPauseStatus();
    void slot_OldTest();
    void slot_TimerOut();
    void slot_colorChanged(const QColor &color);
    void slot_mixTest();
    void on_pushButtonSettings_clicked(); // clazy:exclude=connect-by-name
    void slot_toggledHorizontal();
    void slot_toggledVertical();
    void slot_toggledSlantLeft();
    void slot_toggledSlantRight();
    void slot_changeGridStatus(bool checked);
    void slot_changeLineState();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    static constexpr int familyCount = 4;

    // A line family: its button, and what follows the button.
    struct Family
    {
        QPushButton *button;
        const char *text;
        bool *pressed; // the button is remembered as pressed
        void (GridDrawer::*toggle)(bool);
        void (GridDrawer::*enable)(bool);
        void (ScrGridCtrlDialog::*clicked)();
        QLatin1String checkedKey;
        QLatin1String pressedKey;
    };
    using Families = std::array<Family, familyCount>;

    Families makeFamilies();
    void initSlots();
    void initGrayScaleSlots();
    void initColorRadioSlots();
    void initLinesSlots();
    void initSpeedCtrlSlots();
    void initOldTestSlots();
    void initSaving();
    void initCtrls();
    void initGridStatus();
    void restoreFamilies();
    void restoreColor();
    bool isPaused() const;

    void selectColor(int index);
    void toggleFamily(int index);
    void toggleInOverlay(int index);
    void pressAlone(int index);
    void rememberAlone(int index);
    void uncheckFamilies();
    void stepGrey(int step);
    void rampGrey(bool up);

    int currentSpeed() const;
    int interval(int speed) const;
    void startOrPause();
    void scrollStep();
    void greyRampStep();
    void agingStep();
    void mergedStep();
    void showNextLines();
    void showBackground(const QColor &color);
    void beginTest(bool aging);
    void showRunning(bool running);
    void useMixSelection(const MixSelection &selection);

    const std::unique_ptr<Ui::ScrTestDialog> ui;
    GridDrawer drawer;
    bool isOldTest = false; // the aging test is the mode
    bool isMix = false; // the merged test is the mode
    bool isScroll = false; // the run goes on
    int oldColorIndex = 0;
    int mixIndex = 0;
    std::shared_ptr<QTimer> timer;
    QVector<QColor> oldColors;
    QVector<QColor> mixColors;
    std::array<bool, familyCount> mixLines{true, true, true, true};
    bool autoGreyUp = false;
    bool autoGreyDown = false;
    qint16 mixLineCount = 0;
    qint16 mixColorCount = 0;
    std::array<bool, familyCount> mixLinePending{true, true, true, true};
    bool advanceEnabled = false; // speed and grey can be set; only then do the lines scroll
    QSettings *settings;
    int tickCount = 0;
    bool isHorizontalPress = false;
    bool isVerticalPress = false;
    bool isSlantLeftPress = false;
    bool isSlantRightPress = false;
    const Families m_families; // in the order of lineIndex
    SliderSpinBoxPair m_grey;
    SliderSpinBoxPair m_speed;
    RunIndicator m_lamps;
    SwatchRow *m_swatches;
    SaveSoon *m_saveSoon;
    bool m_runningShown = false; // by the text of the start/pause button
};
