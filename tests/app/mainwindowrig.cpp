#include "mainwindowrig.h"

#include "drawcontainer.h"

#include <QApplication>
#include <QCursor>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSettings>
#include <QTabWidget>

#include <utility>

namespace {

// What the test window shows with the pointer outside of it.
class ExpectedOverlay : public QWidget
{
public:
    ExpectedOverlay(const QPixmap &background, QString text)
        : m_background(background)
        , m_text(std::move(text))
    {
        setAttribute(Qt::WA_TranslucentBackground, background.hasAlphaChannel());
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.drawPixmap(0, 0, m_background);
        painter.setPen(Qt::white);
        painter.drawText(QRect(QPoint(width() / 2 - 20, height() / 2 - 10), size()), 0, m_text);
    }

private:
    QPixmap m_background;
    QString m_text;
};

} // namespace

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

bool MainWindowRig::overlaySays(const QString &text)
{
    DrawContainer *window = testWindow();
    QCursor::setPos(window->mapToGlobal(QPoint(-50, -50))); // outside: no coordinates in the text
    ExpectedOverlay expected(window->grab(), text);
    // In the size in pixels that it has at 96 dots per inch.
    QFont font = window->font();
    if (font.pointSizeF() > 0)
        font.setPixelSize(qRound(font.pointSizeF() / 0.75));
    expected.setFont(font);
    expected.resize(window->size());
    window->slot_keyEndPressed();
    const QImage overlay = window->grab().toImage();
    window->slot_keyEndPressed();
    return overlay == expected.grab().toImage();
}
