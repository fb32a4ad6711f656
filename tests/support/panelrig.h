#pragma once

#include "canvas.h"
#include "controlbase.h"
#include "signallog.h"
#include "testsettings.h"

#include <QAbstractButton>
#include <QSlider>
#include <QSpinBox>

#include <memory>
#include <type_traits>

// What a row of swatches may select, in the order of the colour table.
constexpr int colorCount = 7;
constexpr Qt::GlobalColor colors[colorCount] = {Qt::red,    Qt::green, Qt::blue,   Qt::white,
                                                Qt::yellow, Qt::cyan,  Qt::magenta};

// Adds the column "index" with a row for each of the first colours.
void addColorRows(int count = colorCount);

// A panel over a test window and a settings file of its own, whatever panel it is.
class AnyPanelRig
{
public:
    virtual ~AnyPanelRig() = default;
    Q_DISABLE_COPY(AnyPanelRig)

    virtual QWidget *widget() const = 0;
    virtual void updateLanguage() = 0;
    // Closes the panel, and what it leaves is in the file.
    virtual void close() = 0;
    // Builds the panel again, as after a restart of the program.
    virtual void restart() = 0;

    template<typename Widget>
    Widget *child(const char *name) const
    {
        return widget()->findChild<Widget *>(QLatin1String(name));
    }

    QAbstractButton *colorButton(int index) const;
    // The checked colour, -1 for none.
    int checkedColor() const;

    void click(QWidget *control) const;
    // As the operator: gives a control its value, clicks the button of this name or text, or has
    // the keys call the slot of this name.
    void operate(const QString &control, const QVariant &value = {}) const;

    // Texts of the controls in the order of the form, accessible names where there are no texts.
    QStringList texts() const;
    // The text that a control shows; empty for those that have none.
    static QString textOf(const QWidget *control);

    // What the panel has emitted since the last call, as SignalLog has it.
    QString emitted() const { return m_log->take(); }
    bool isSaveDue() const;

    TestSettings settings;
    Canvas canvas;

protected:
    template<typename Stored>
    AnyPanelRig(const Stored &stored, const QSize &size)
        : settings(stored)
        , canvas(size)
    { }

    std::unique_ptr<SignalLog> m_log;
};

// The same of one class, which the rigs with their controls at hand derive from.
template<typename Panel>
class PanelRig : public AnyPanelRig
{
public:
    // The settings file holds these values, or exactly these bytes, before the panel is built.
    explicit PanelRig(const QVariantMap &values = {}, const QSize &size = QSize(33, 17))
        : AnyPanelRig(values, size)
    {
        build();
    }
    explicit PanelRig(const QByteArray &contents, const QSize &size = QSize(33, 17))
        : AnyPanelRig(contents, size)
    {
        build();
    }

    QWidget *widget() const override { return panel.get(); }
    void updateLanguage() override { panel->updateLanguage(); }

    void close() override
    {
        canvas.setDrawer(nullptr);
        panel.reset();
        settings->sync();
    }

    void restart() override
    {
        close();
        settings.reopen();
        build();
    }

    // Whether its drawer is on the test window, the same each time, and left as it is.
    bool keepsItsDrawer() const
    {
        DrawerBase *drawer = panel->getDrawer();
        bool keeps = drawer->targetWidget == &canvas;
        for (const bool active : {true, false}) {
            drawer->active = active;
            keeps = keeps && panel->getDrawer() == drawer && drawer->active == active;
        }
        return keeps;
    }

    std::unique_ptr<Panel> panel;

private:
    void build()
    {
        panel = std::make_unique<Panel>(&canvas, settings.get(), nullptr);
        if constexpr (std::is_base_of_v<ControlBase, Panel>)
            canvas.setDrawer(panel->getDrawer());
        m_log = std::make_unique<SignalLog>(panel.get());
    }
};
