#pragma once

#include "controlbase.h"
#include "runindicator.h"
#include "savesoon.h"
#include "scrpurity.h"
#include "sliderspinboxpair.h"

#include <QWidget>

#include <memory>

class QSettings;
class SwatchRow;

namespace Ui {
class ScrPurityCtrlDialog;
}

// Tab 1, the purity test: one of seven colours at a grey level that is set by hand or
// stepped by a timer.
class ScrPurityCtrlDialog
    : public QWidget
    , public ControlBase
{
    Q_OBJECT

public:
    // Test window and settings are borrowed. Without settings nothing is restored or
    // saved.
    ScrPurityCtrlDialog(QWidget *testWindow, QSettings *settings, QWidget *parent);
    ~ScrPurityCtrlDialog() override;

    DrawerBase *getDrawer() override { return &drawer; }
    void saveScrPurityInfo();
    void updateLanguage();

    // The grey level in the settings, as the test window's overlay has it before any change.
    QString storedGrey() const;

    // The page keys have left this panel.
    void canclePageUpDownSelect();

    // The selected colour in the colour table, 256 for none yet. The page keys set it
    // and then call slot_changeColorByPageUpDown().
    int colorIndex = 256;

    // The operator has changed the colour or a grey level since this was last cleared.
    bool puritySelected = false;

signals:
    void signal_colorChanged(const QColor &color);
    void signal_greyChanged(const QString &grey);
    void signal_purityAutoChange();
    void signal_switchToMal(int grey);

public slots:
    void slot_changeSelectedPurityColor(const QColor &color);
    void slot_changeColorByPageUpDown();
    void slot_keyUpPressed() { stepGrey(1); }
    void slot_keyDownPressed() { stepGrey(-1); }
    void slot_keyLeftPressed() { stepGrey(-1); }
    void slot_keyRightPressed() { stepGrey(1); }
    void slot_keyInsertPressed() { stepAutomatically(true); }
    void slot_keyDeletePressed() { stepAutomatically(false); }
    void slot_AutoScaleChanged(int grey) { emit signal_greyChanged(QString::number(grey)); }
    void slot_SpeedChanged(int speed);
    void slot_PauseResume();
    void slot_stopChangeGrey();
    void slot_MalPushed(bool checked);
    void slot_AutoPushed(bool checked);
    void slot_AutoTimerFinished();
    void slot_puritySelect(bool flag) { puritySelected = flag; }

private:
    void initSlots();
    void initCtrls();
    void initPurityStatus();
    void restoreControls();
    void selectColor(int index);
    void storeColor(const QColor &color);
    void stepGrey(int step);
    void stepAutomatically(bool up);
    void enableControls(bool automatic);

    const std::unique_ptr<Ui::ScrPurityCtrlDialog> ui;
    ScrPurity drawer;
    QSettings *settings;
    QTimer *autoTimer = nullptr; // there only while the automatic run goes on
    bool firstColorPending = true; // the colour that is restored is not the operator's choice
    bool autoRunning = false;
    bool stepUp = false;
    bool stepDown = false;
    SliderSpinBoxPair m_grey;
    SliderSpinBoxPair m_speed;
    RunIndicator m_lamps;
    SwatchRow *m_swatches;
    SaveSoon m_saveSoon;
};
