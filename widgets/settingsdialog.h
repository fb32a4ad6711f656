#pragma once

#include "framelessdialog.h"

class QLabel;

// What the program's own dialogs have in common: their look.
class SettingsDialog : public UX::Widgets::FramelessDialog
{
    Q_OBJECT

protected:
    SettingsDialog(const char *name, const QSize &size, QWidget *parent);

    // A thin line between two groups of controls.
    static QLabel *createSeparator(const char *name = "");
};
