#pragma once

#include "panelrig.h"
#include "scrgrid.h"
#include "tarntool.h"

#include <QPushButton>
#include <QRadioButton>

// The background picture that the panel keeps beside the program.
namespace KeptPicture {
QString folder();
QString path();
// Makes the folder and leaves exactly this in it; nothing for null.
void set(const QByteArray &contents);
// Of the last picture that was to be kept.
QByteArray contents();
} // namespace KeptPicture

extern const char *const countKeys[4]; // of width, height, columns and rows
extern const char *const advancedKeys[6];
// In the order of the keys.
QVector<int> advancedFields(const ScrGrid &drawer);

// The cabinet panel with its controls at hand. As in the program, its drawer has been taken once.
class CabinetRig : public PanelRig<TarnTool>
{
public:
    // `kept` stands in the picture folder before the panel is built.
    explicit CabinetRig(const QVariantMap &values = {}, const QByteArray &kept = {});
    explicit CabinetRig(const QByteArray &contents);

    void restart() override;

    QSpinBox *box(const char *name) const { return child<QSpinBox>(name); }
    QRadioButton *radio(const char *name) const { return child<QRadioButton>(name); }
    QWidget *control(const char *name) const { return child<QWidget>(name); }
    // The two share a name for the style sheet.
    QPushButton *setupButton() const { return pushButton(0); }
    QPushButton *layoutButton() const { return pushButton(1); }

    using PanelRig::click;
    void click(const char *name) const { click(control(name)); }
    // Presses the layout button, which unlocks the panel.
    void layOut() const { click(layoutButton()); }

    // The controls that are enabled, by name.
    QStringList enabledControls() const;
    QString style(const char *swatch) const { return control(swatch)->styleSheet(); }
    QVariant stored(const char *key) const;

    ScrGrid *drawer = nullptr;

private:
    void takeDrawer();
    QPushButton *pushButton(int index) const;
};

// Restores the dialogs' real selves at the end of the scope.
struct DialogAnswers
{
    // Every colour dialog is answered with this; an invalid colour cancels it.
    static void color(const QColor &color);
    // Every file dialog is answered with this; an empty path cancels it.
    static void file(const QString &path);
    // Neither is to be opened.
    static void none();

    DialogAnswers() = default;
    ~DialogAnswers();
    Q_DISABLE_COPY(DialogAnswers)
};
