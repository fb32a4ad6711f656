#include "mainwindowrig.h"

#include "drawcontainer.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QSettings>
#include <QTabWidget>

MainWindowRig::MainWindowRig() = default;
MainWindowRig::~MainWindowRig() = default;

QString MainWindowRig::settingsPath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/config.ini");
}

MainWindow &MainWindowRig::start(const QVariantMap &values)
{
    end();
    QFile::remove(settingsPath());
    if (!values.isEmpty()) {
        QSettings settings(settingsPath(), QSettings::IniFormat);
        settings.setIniCodec("UTF-8");
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            settings.setValue(QStringLiteral("/setting/") + value.key(), value.value());
    }
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    return *m_window;
}

void MainWindowRig::end()
{
    m_window.reset();
}

QTabWidget *MainWindowRig::tabs()
{
    return m_window->findChild<QTabWidget *>(QStringLiteral("tabWidget"));
}

DrawContainer *MainWindowRig::testWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *found = qobject_cast<DrawContainer *>(window))
            return found;
    }
    return nullptr;
}

QRgb MainWindowRig::shownPixel()
{
    return testWindow()->grab().toImage().pixel(testWindow()->rect().center());
}
