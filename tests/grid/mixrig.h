#pragma once

#include "canvas.h"
#include "customerqlabel.h"
#include "framelessmessagebox.h"
#include "griddrawer.h"
#include "mixsetting.h"
#include "testsettings.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSpinBox>

// In the order in which they stand.
inline const QStringList &boxNames()
{
    static const QStringList names =
        QStringLiteral("checkBoxRed checkBoxGreen checkBoxBlue checkBoxWhite checkBoxYellow "
                       "checkBoxCyan checkBoxPurple checkBoxV checkBoxH checkBoxSL checkBoxSR")
            .split(QLatin1Char(' '));
    return names;
}

// The dialog over a drawer, a test window and a settings file of its own.
struct MixRig
{
    explicit MixRig(const QVariantMap &values = {})
        : settings(values)
    { }

    QCheckBox *box(const QString &name) { return dialog.findChild<QCheckBox *>(name); }
    QSpinBox *spinBox(const char *name)
    {
        return dialog.findChild<QSpinBox *>(QLatin1String(name));
    }
    CustomerQlabel *colorLabel()
    {
        return dialog.findChild<CustomerQlabel *>(QStringLiteral("toolButtonColorPick"));
    }
    QPushButton *button(const QString &text)
    {
        const auto buttons = dialog.findChildren<QPushButton *>(QStringLiteral("DialogPushBtn"));
        for (QPushButton *each : buttons) {
            if (each->text() == text && !each->isHidden())
                return each;
        }
        qFatal("no such button");
        return nullptr;
    }
    void click(const QString &text) { button(text)->click(); }
    QList<UX::Widgets::FramelessMessageBox *> warnings()
    {
        return dialog.findChildren<UX::Widgets::FramelessMessageBox *>();
    }

    QStringList checked()
    {
        QStringList names;
        for (const QString &name : boxNames()) {
            if (box(name)->isChecked())
                names << name;
        }
        return names;
    }

    // What the test window shows between its lines.
    QRgb background()
    {
        testWindow.setDrawer(&drawer);
        return testWindow.painted().pixel(0, 0);
    }

    TestSettings settings;
    Canvas testWindow;
    GridDrawer drawer{&testWindow};
    MixSetting dialog{&drawer, settings.get(), nullptr};
};
