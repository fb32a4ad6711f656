#pragma once

#include "panelrig.h"
#include "scrpurityctrldialog.h"

#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

// Texts of the button that starts and pauses the run.
const QString begin = QStringLiteral("开始");
const QString pause = QStringLiteral("暂停");

inline QVariantMap automaticMode()
{
    return {{QStringLiteral("AutoTest"), true}};
}

// The purity panel with its controls at hand.
class PurityRig : public PanelRig<ScrPurityCtrlDialog>
{
public:
    using PanelRig::PanelRig;

    QRadioButton *manual() const { return child<QRadioButton>("radioButtonMual"); }
    QRadioButton *automatic() const { return child<QRadioButton>("radioButtonAuto"); }
    QSlider *greySlider() const { return child<QSlider>("hScrollBarScale"); }
    QSpinBox *greySpinBox() const { return child<QSpinBox>("spinBoxScale"); }
    QSpinBox *autoSpinBox() const { return child<QSpinBox>("spinBoxAutoScale"); }
    QSlider *speedSlider() const { return child<QSlider>("hScrollBarSpeed"); }
    QSpinBox *speedSpinBox() const { return child<QSpinBox>("spinBoxSpeed"); }
    QPushButton *beginButton() const { return child<QPushButton>("beginPushBtn"); }
    QWidget *greenLamp() const { return child<QWidget>("signalGreenButton"); }
    QWidget *greyLamp() const { return child<QWidget>("signalGreyButton"); }

    // The running timer of the automatic run, null when there is none.
    QTimer *timer() const;

    // An automatic panel's run begins at a grey level.
    void startRun(int grey) const
    {
        autoSpinBox()->setValue(grey);
        panel->slot_PauseResume();
    }

    // One step of the automatic run; returns the grey level that follows.
    int tick() const;

    // Controls that are enabled in automatic mode alone, and in manual mode alone.
    bool hasControlsOf(bool automaticMode) const;

    // The colour that the test window shows.
    QRgb shownColor();
};
