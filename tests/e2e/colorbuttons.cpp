// A window with a red and a blue colour button side by side, 60 pixels wide and 60 high each, on
// a white ground. It says on its standard output which button changes to which colour.

#include "qtcolorbutton.h"

#include <QApplication>
#include <QTextStream>

namespace {

QtColorButton *addButton(QWidget *window, const QString &name, const QPoint &place,
                         const QColor &color)
{
    auto *button = new QtColorButton(window);
    button->setGeometry(QRect(place, QSize(60, 60)));
    button->setColor(color);
    QObject::connect(button, &QtColorButton::colorChanged, button, [name](const QColor &changed) {
        QTextStream(stdout) << name << ' ' << changed.name() << '\n';
    });
    return button;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.setStyleSheet(QStringLiteral("background-color: white"));
    addButton(&window, QStringLiteral("left"), QPoint(20, 20), Qt::red);
    addButton(&window, QStringLiteral("right"), QPoint(140, 20), Qt::blue);
    window.setFixedSize(220, 100);
    window.move(200, 150);
    window.show();
    return QApplication::exec();
}
