#pragma once

#include "controlbase.h"
#include "familyrow.h"
#include "griddrawer.h"
#include "gridrun.h"
#include "runindicator.h"
#include "savesoon.h"
#include "sliderspinboxpair.h"

#include <QDialog>

#include <memory>

class QSettings;
class SwatchRow;

namespace Ui {
class ScrTestDialog;
}

// Tab 3, the grid test: lines of four families in one of seven colours, and the controls of the
// automatic run, whose steps a timer makes.
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

    bool getScroll() const { return m_run.isOn; }
    bool getScrollEnabled() const { return m_run.isOn; }
    void setScroll(bool on) { m_run.isOn = on; }
    void setScrollEnabled(bool on);

    // Speed and grey can be set, and the lines scroll.
    void enableAdvanceSettings();
    // Specified: the mix settings stay open.
    void disableAdvanceSettings() { setRunControlsEnabled(false); }

    // Each remembers this family alone as pressed, despite its name.
    void isHorizontalPressTrue() { m_families.rememberAlone(0); }
    void isVerticalPressTrue() { m_families.rememberAlone(1); }
    void isSlantLeftPressTrue() { m_families.rememberAlone(2); }
    void isSlantRightPressTrue() { m_families.rememberAlone(3); }

    // Counts the line steps of the merged cycle and makes them all pending.
    int getSelectedHVLRCount() { return m_run.restartFamilies(); }

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

    // Specified: set nowhere, although the main window asks for it.
    bool scrollLocked = false;

signals:
    void signal_colorChanged(const QColor &color);
    // The aging or the merged test shows this colour, here before dimming.
    void signal_oldMixColorChanged(const QColor &color);
    void signal_greyChanged(const QString &grey);
    // The run goes on by a step.
    void signal_gridAutoChange();

public slots:
    void slot_keyUpPressed() { stepGrey(1); }
    void slot_keyDownPressed() { stepGrey(-1); }
    void slot_keyLeftPressed() { stepGrey(-1); }
    void slot_keyRightPressed() { stepGrey(1); }
    void slot_keyInsertPressed() { m_run.rampGrey(1); }
    void slot_keyDeletePressed() { m_run.rampGrey(-1); }
    // A colour outside the colour table is ignored.
    void slot_changeSelectedGridColor(const QColor &color);
    // Shows the colour and the line family of the two indices, whichever way the page keys
    // have gone.
    void slot_changeColorByPageDown();
    void slot_stopStartPauseStatus() { setScroll(true); }
    void slot_stopPauseStatus() { setScroll(false); }
    void slot_OldTest() { beginTest(true); }
    void slot_TimerOut();
    void slot_colorChanged(const QColor &color);
    void slot_mixTest() { beginTest(false); }
    void on_pushButtonSettings_clicked(); // clazy:exclude=connect-by-name
    void slot_toggledHorizontal() { toggleFamily(0); }
    void slot_toggledVertical() { toggleFamily(1); }
    void slot_toggledSlantLeft() { toggleFamily(2); }
    void slot_toggledSlantRight() { toggleFamily(3); }
    void slot_changeGridStatus(bool checked);
    void slot_changeLineState();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void initSlots();
    void initLinesSlots();
    void initRunSlots();
    void initSaving();
    void initCtrls();
    void initGridStatus();

    void selectColor(int index);
    void storeColor(const QColor &color);
    void toggleFamily(int family);
    void stepGrey(int by);
    void tellScrolled();
    void setRunControlsEnabled(bool on);
    void startOrPause();
    void beginTest(bool aging);
    void showRunning(bool running);
    bool isPaused() const;

    const std::unique_ptr<Ui::ScrTestDialog> ui;
    GridDrawer drawer;
    std::shared_ptr<QTimer> timer;
    QSettings *settings;
    GridRun m_run;
    FamilyRow m_families;
    SliderSpinBoxPair m_grey;
    SliderSpinBoxPair m_speed;
    RunIndicator m_lamps;
    SwatchRow *m_swatches;
    SaveSoon m_saveSoon;
    bool m_runningShown = false; // by the text of the start/pause button
};
