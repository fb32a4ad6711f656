// A main window, a green window that is always on top, and a frameless dialog that lies partly
// over it. The argument is the dialog's modality as a number. The program says on its standard
// output when the main window's button is clicked.

#include "appmainwindow.h"
#include "framelessdialog.h"

#include <QApplication>
#include <QPushButton>
#include <QTextStream>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);

    UX::Utils::AppMainWindow main;
    main.setWindowTitle(QStringLiteral("main"));
    auto *button = new QPushButton(&main);
    main.setCentralWidget(button);
    QObject::connect(button, &QPushButton::clicked, button,
                     [] { QTextStream(stdout) << "clicked\n"; });
    main.setFixedSize(400, 200);
    main.move(50, 400);
    main.show();

    QWidget onTop(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    onTop.setWindowTitle(QStringLiteral("on top"));
    onTop.setStyleSheet(QStringLiteral("background-color: #00ff00"));
    onTop.setGeometry(50, 50, 600, 250);
    onTop.show();

    UX::Widgets::FramelessDialog dialog(&main);
    dialog.setWindowTitle(QStringLiteral("dialog"));
    dialog.setFixedSize(300, 200);
    dialog.move(200, 230);
    dialog.setWindowModality(Qt::WindowModality(QString::fromLatin1(argv[1]).toInt()));
    dialog.show();
    return QApplication::exec();
}
