#pragma once

#include "canvas.h"
#include "scrpurityctrldialog.h"
#include "testsettings.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTimer>
#include <QTranslator>

#include <memory>

// The purity panel over a canvas and a settings file of its own, with its controls at
// hand.
class PurityRig
{
public:
    // `values` stand in the file before the panel is built.
    explicit PurityRig(const QVariantMap &values = {})
        : settings(values)
    {
        build();
    }

    // The file holds exactly these bytes before the panel is built.
    explicit PurityRig(const QByteArray &fileContents);

    // Builds the panel anew, as after a restart of the program.
    void restart();

    template<typename Widget>
    Widget *child(const char *name) const
    {
        return panel->findChild<Widget *>(QLatin1String(name));
    }

    QAbstractButton *colorButton(int index) const;
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

    void click(QAbstractButton *button) const;

    // The running timer of the automatic run, null when there is none.
    QTimer *timer() const;

    // One step of the automatic run; returns the grey level that follows.
    int tick() const;

    // Controls that are enabled in automatic mode alone, and in manual mode alone.
    bool hasControlsOf(bool automaticMode) const;

    // The colour that the test window shows.
    QRgb shownColor();

    bool fileExists() const;
    QByteArray fileBytes() const;

    // What stands in the file at this moment, nothing pending included.
    QVariant inFile(const QString &key) const;

    TestSettings settings;
    Canvas canvas;
    std::unique_ptr<ScrPurityCtrlDialog> panel;

private:
    void build();
};

// Gives every source text a short translation, or one that fits nowhere.
class PurityTranslator : public QTranslator
{
public:
    explicit PurityTranslator(bool lengthy = false)
        : m_lengthy(lengthy)
    { }

    QString translate(const char *context, const char *sourceText, const char *,
                      int) const override;
    bool isEmpty() const override { return false; }

private:
    bool m_lengthy;
};
