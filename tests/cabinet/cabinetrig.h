#pragma once

#include "canvas.h"
#include "scrgrid.h"
#include "tarntool.h"
#include "testsettings.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include <memory>

class CustomerQlabel;

// The file of a picture in one colour.
QByteArray pictureFile(const QColor &color, const QSize &size = QSize(8, 6),
                       const char *format = "PNG");

// The background picture that the panel keeps beside the program.
namespace KeptPicture {
QString folder();
QString path();
// Makes the folder and leaves exactly this in it; nothing for null.
void set(const QByteArray &contents);
QByteArray contents();
} // namespace KeptPicture

// The cabinet panel over a canvas and a settings file of its own, with its controls at hand. As
// in the program, its drawer has been taken once.
class CabinetRig
{
public:
    // `values` stand in the file, and `kept` in the picture folder, before the panel is built.
    explicit CabinetRig(const QVariantMap &values = {}, const QByteArray &kept = {});
    ~CabinetRig();

    // Builds the panel anew, as after a restart of the program.
    void restart();

    template<typename Widget>
    Widget *child(const char *name) const
    {
        return panel->findChild<Widget *>(QLatin1String(name));
    }

    QSpinBox *box(const char *name) const { return child<QSpinBox>(name); }
    QRadioButton *radio(const char *name) const { return child<QRadioButton>(name); }
    QWidget *widget(const char *name) const { return child<QWidget>(name); }
    // The two share a name for the style sheet.
    QPushButton *setupButton() const { return pushButton(0); }
    QPushButton *layoutButton() const { return pushButton(1); }

    void click(QWidget *control) const;
    void click(const char *name) const { click(widget(name)); }
    // Presses the layout button, which unlocks the panel.
    void layOut() const { click(layoutButton()); }

    // The controls that are enabled, by name.
    QStringList enabledControls() const;
    QString style(const char *swatch) const { return widget(swatch)->styleSheet(); }
    // Whether the change that is due will be saved within a second.
    bool isSaveDue() const;
    QVariant stored(const char *key) const;

    mutable TestSettings settings;
    Canvas canvas{QSize(128, 64)};
    std::unique_ptr<TarnTool> panel;
    ScrGrid *drawer = nullptr;

private:
    void build();
    QPushButton *pushButton(int index) const;
};

// Restores the dialogs' real selves at the end of the scope.
struct DialogAnswers
{
    // Every colour dialog is answered with this; an invalid colour cancels it.
    static void color(const QColor &color);
    // Every file dialog is answered with this; an empty path cancels it.
    static void file(const QString &path);

    DialogAnswers() = default;
    ~DialogAnswers();
    Q_DISABLE_COPY(DialogAnswers)
};
