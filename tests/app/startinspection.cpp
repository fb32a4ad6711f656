#include "startinspection.h"

#include "drawcontainer.h"
#include "drawctrlform.h"
#include "mainwindowrig.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>

namespace {

QSize desktopSums()
{
    QSize sums(0, 0);
    const auto screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        sums += screen->geometry().size();
    return sums;
}

class Inspection
{
public:
    explicit Inspection(MainWindow &window)
        : m_window(window)
    { }

    // The first thing that is wrong, empty if nothing is.
    QString problem()
    {
        const QSize desktop = desktopSums();
        const QWidget *testWindow = MainWindowRig::testWindow();
        const QRect place = testWindow->geometry();
        const int w = desktop.width();
        const int h = desktop.height();
        control("spinBoxX", "hScrollBarX", 1 - w, w - 1, place.x());
        control("spinBoxY", "hScrollBarY", 1 - h, h - 1, place.y());
        control("spinBoxWidth", "hScrollBarWidth", 1, w, place.width());
        control("spinBoxHeight", "hScrollBarHeight", 1, h, place.height());
        spinBox("spinBoxScale", 0, 255);
        spinBox("spinBoxAutoScale", 0, 255);
        spinBox("spinBoxSpeed", 1, 100);
        spinBox("labelGrayLevel", 0, 255);
        spinBox("labelSpeed", 1, 100);
        visibility(testWindow->isHidden());
        choices();
        return m_problem;
    }

private:
    void expect(bool right, const QString &what)
    {
        if (!right && m_problem.isEmpty())
            m_problem = what;
    }

    int spinBox(const char *name, int minimum, int maximum)
    {
        const auto *found = m_window.findChild<QSpinBox *>(QLatin1String(name));
        const int value = found ? found->value() : minimum - 1;
        expect(value >= minimum && value <= maximum, QStringLiteral("%1 shows %2, not %3 to %4")
                                                         .arg(QLatin1String(name))
                                                         .arg(value)
                                                         .arg(minimum)
                                                         .arg(maximum));
        return value;
    }

    void control(const char *box, const char *bar, int minimum, int maximum, int real)
    {
        const int value = spinBox(box, minimum, maximum);
        const auto *slider = m_window.findChild<QSlider *>(QLatin1String(bar));
        expect(slider && slider->value() == value,
               QStringLiteral("%1 and its slider differ").arg(QLatin1String(box)));
        expect(value == real, QStringLiteral("%1 shows %2 and the test window has %3")
                                  .arg(QLatin1String(box))
                                  .arg(value)
                                  .arg(real));
    }

    void visibility(bool isHidden)
    {
        const auto *panel = m_window.findChild<DrawCtrlForm *>();
        const auto buttons = panel->findChildren<QPushButton *>();
        for (const QPushButton *button : buttons) {
            const bool shows = button->text() == QStringLiteral("显示");
            expect(button->isEnabled() == (shows == isHidden),
                   QStringLiteral("The button \"%1\" is wrong").arg(button->text()));
        }
        expect(buttons.count() == 2, QStringLiteral("Not two buttons"));
    }

    void choices()
    {
        const auto *tabs = m_window.findChild<QTabWidget *>(QStringLiteral("tabWidget"));
        expect(tabs->currentIndex() >= 0 && tabs->currentIndex() < 7, QStringLiteral("No tab"));
        const auto isChecked = [this](const char *name) {
            return m_window.findChild<QRadioButton *>(QLatin1String(name))->isChecked();
        };
        expect(isChecked("radioButtonAuto") != isChecked("radioButtonMual"),
               QStringLiteral("Not one mode of the purity test"));
    }

    MainWindow &m_window;
    QString m_problem;
};

} // namespace

QString problemOf(MainWindow &window)
{
    return Inspection(window).problem();
}

void stepThrough(MainWindow &window)
{
    window.show();
    window.updateLanguage();
    for (int page = 0; page < 24; ++page) {
        window.slot_SwitchDownTabControl();
        MainWindowRig::testWindow()->grab();
    }
    QCoreApplication::processEvents();
}
