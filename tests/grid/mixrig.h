#pragma once

#include "canvas.h"
#include "customerqlabel.h"
#include "griddrawer.h"
#include "mixsetting.h"
#include "testsettings.h"
#include "titlebar.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

// Texts of the buttons.
const QString all = QStringLiteral("全选");
const QString clear = QStringLiteral("清空");
const QString confirm = QStringLiteral("确定");

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

    template<typename Widget>
    Widget *child(const QString &name)
    {
        return dialog.findChild<Widget *>(name);
    }
    QCheckBox *box(const QString &name) { return child<QCheckBox>(name); }
    QSpinBox *pix() { return child<QSpinBox>(QStringLiteral("spinBoxPix")); }
    QSpinBox *distance() { return child<QSpinBox>(QStringLiteral("spinBoxDistance")); }
    CustomerQlabel *color() { return child<CustomerQlabel>(QStringLiteral("toolButtonColorPick")); }
    // With this text, among all that are not hidden.
    template<typename Widget>
    Widget *withText(const QString &text)
    {
        const auto widgets = dialog.findChildren<Widget *>();
        for (Widget *each : widgets) {
            if (each->text() == text && !each->isHidden())
                return each;
        }
        qFatal("there is no such text");
        return nullptr;
    }
    QPushButton *button(const QString &text) { return withText<QPushButton>(text); }
    QAbstractButton *closeButton()
    {
        auto *bar = dialog.findChild<UX::Widgets::TitleBar *>();
        return qobject_cast<QAbstractButton *>(bar->titleButton(4));
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

    void show()
    {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
    }
    QRect place(const QWidget *widget)
    {
        return {widget->mapTo(&dialog, QPoint()), widget->size()};
    }

    TestSettings settings;
    Canvas testWindow;
    GridDrawer drawer{&testWindow};
    MixSetting dialog{&drawer, settings.get(), nullptr};
};
