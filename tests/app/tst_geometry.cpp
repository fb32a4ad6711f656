#include "advancedsetup.h"
#include "desktopscale.h"
#include "drawcontainer.h"
#include "framelessmessagebox.h"
#include "griddrawer.h"
#include "mainwindowrig.h"
#include "mixsetting.h"
#include "rows.h"
#include "scrgrid.h"
#include "shippedtranslation.h"
#include "testsettings.h"
#include "textwidth.h"
#include "titlebar.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QTest>
#include <QtMath>

#include <functional>

// Does something wrong with two controls.
using Spoil = std::function<void(QLabel *, QCheckBox *)>;
Q_DECLARE_METATYPE(Spoil)

// In every language each control of each window has the room that it needs: it stands inside of
// its parent and beside its neighbours, and a text that does not fit is told by the tool tip.
class TestGeometry : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void titleBar_standsAboveTheMarkedFrame();
    void waylandLine_isNotCut_data() { ShippedTranslation::addRows(); }
    void waylandLine_isNotCut();
    void controlsAndTexts_haveTheirRoom_data();
    void controlsAndTexts_haveTheirRoom();
    void faults_areFound_data();
    void faults_areFound();

private:
    static QStringList faultsOf(const QWidget &window);
    static QStringList faultsOfAdvancedSetup();
    static QStringList faultsOfMixSetting(bool warning);

    MainWindowRig m_rig;
};

namespace {

QString describe(const QWidget *widget)
{
    const QRect place = widget->geometry();
    return QStringLiteral("%1 \"%2\" (%3,%4 %5x%6)")
        .arg(QLatin1String(widget->metaObject()->className()), widget->objectName())
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height());
}

bool isScrolled(const QWidget *widget)
{
    const QWidget *viewport = widget->parentWidget();
    const auto *area =
        viewport ? qobject_cast<const QScrollArea *>(viewport->parentWidget()) : nullptr;
    return area && area->widget() == widget;
}

// What the toolkit makes of several widgets for itself is its own affair.
bool isOurs(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    return widget->isVisible() && !widget->isWindow() && parent
           && !widget->objectName().startsWith(QLatin1String("qt_")) && !parent->inherits("QTabBar")
           && !parent->inherits("QAbstractSpinBox") && !parent->inherits("QComboBox")
           && !parent->inherits("QScrollBar");
}

// The room for a text of the control, in pixels; negative when it has no text of its own.
int textRoom(const QWidget *widget)
{
    if (qobject_cast<const QLabel *>(widget))
        return widget->contentsRect().width();
    const bool hasIndicator =
        qobject_cast<const QCheckBox *>(widget) || qobject_cast<const QRadioButton *>(widget);
    if (hasIndicator && !widget->inherits("SwatchButton"))
        return widget->width() - qFloor(20 * DesktopScale::factor());
    if (qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QGroupBox *>(widget))
        return widget->width();
    return -1;
}

QString textOf(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label && label->wordWrap())
        return {};
    return widget->property(qobject_cast<const QGroupBox *>(widget) ? "title" : "text").toString();
}

// Empty if the text fits, or says by its tool tip what is cut off.
QString textFault(const QWidget *widget)
{
    const QString text = textOf(widget);
    const int room = textRoom(widget);
    if (text.isEmpty() || room < 0)
        return {};
    const int needed = textWidth(widget->fontMetrics(), text);
    const bool isTold = text.endsWith(QChar(0x2026)) && !widget->toolTip().isEmpty();
    if (needed <= room || isTold)
        return {};
    return QStringLiteral("%1: \"%2\" needs %3 of %4 pixels")
        .arg(describe(widget), text)
        .arg(needed)
        .arg(room);
}

QStringList neighbourFaults(const QList<QWidget *> &siblings)
{
    QStringList faults;
    for (int one = 0; one < siblings.size(); ++one) {
        for (int other = one + 1; other < siblings.size(); ++other) {
            if (siblings.at(one)->geometry().intersects(siblings.at(other)->geometry()))
                faults << QStringLiteral("%1 overlaps %2")
                              .arg(describe(siblings.at(one)), describe(siblings.at(other)));
        }
    }
    return faults;
}

} // namespace

QStringList TestGeometry::faultsOf(const QWidget &window)
{
    QStringList faults;
    QList<const QWidget *> parents{&window};
    while (!parents.isEmpty()) {
        const QWidget *parent = parents.takeFirst();
        QList<QWidget *> children;
        const QList<QWidget *> all =
            parent->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget *child : all) {
            // What lets the mouse through is an edge that lies over the rest on purpose.
            if (!isOurs(child) || child->testAttribute(Qt::WA_TransparentForMouseEvents))
                continue;
            children << child;
            parents << child;
            if (!isScrolled(child) && !parent->rect().contains(child->geometry()))
                faults << QStringLiteral("%1 stands out of its parent").arg(describe(child));
            const QString fault = textFault(child);
            if (!fault.isEmpty())
                faults << fault;
        }
        faults << neighbourFaults(children);
    }
    return faults;
}

QStringList TestGeometry::faultsOfAdvancedSetup()
{
    QWidget canvas;
    ScrGrid drawer(&canvas);
    TestSettings settings;
    AdvancedSetup advanced(settings.get(), &drawer, nullptr);
    advanced.setAttribute(Qt::WA_DeleteOnClose, false);
    advanced.show();
    return faultsOf(advanced);
}

// Of the dialog, or of its warning that nothing is chosen.
QStringList TestGeometry::faultsOfMixSetting(bool warning)
{
    QWidget canvas;
    GridDrawer drawer(&canvas);
    TestSettings settings;
    MixSetting mix(&drawer, settings.get(), nullptr);
    mix.show();
    if (!warning)
        return faultsOf(mix);
    mix.slot_pushButtonClear();
    mix.slot_pushButtonOK();
    const auto *box = mix.findChild<UX::Widgets::FramelessMessageBox *>();
    return box && box->isVisible() ? faultsOf(*box) : QStringList(QStringLiteral("no warning"));
}

void TestGeometry::initTestCase()
{
    DesktopScale::request(qEnvironmentVariable("TARN_TEST_SCALE"));
    m_rig.start();
}

void TestGeometry::titleBar_standsAboveTheMarkedFrame()
{
    const auto *frame = qobject_cast<QFrame *>(m_rig.window().centralWidget());
    QVERIFY(frame);
    QVERIFY(frame->property("isFramelessCentralWidget").toBool());
    const qreal factor = DesktopScale::factor();
    const QSize window(qFloor(585 * factor), qFloor(245 * factor));
    const int barHeight = qFloor(28 * factor);
    QCOMPARE(frame->geometry(), QRect(0, barHeight, window.width(), window.height() - barHeight));
    QCOMPARE(m_rig.window().titleBar()->geometry(), QRect(0, 0, window.width(), barHeight));
}

void TestGeometry::waylandLine_isNotCut()
{
    QFETCH(const QString, language);
    const ShippedTranslation translation(language);
    QVERIFY(translation.isInstalled());
    m_rig.window().updateLanguage();
    m_rig.tabs()->setCurrentIndex(0);
    auto *line = m_rig.window().findChild<QLabel *>(QStringLiteral("labelWayland"));
    QVERIFY(line->isHidden());

    line->show();
    const QStringList faults = faultsOf(m_rig.window());
    line->hide();

    QCOMPARE(faults.join(QLatin1Char('\n')), QString());
    QVERIFY(line->text().contains(QLatin1String("Wayland")));
    QCOMPARE(line->toolTip(), QString());
}

void TestGeometry::controlsAndTexts_haveTheirRoom_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("window");
    const QStringList languages = ShippedTranslation::languages();
    for (const QString &language : languages) {
        for (int tab = 0; tab < m_rig.tabs()->count(); ++tab)
            QTest::addRow("%s, tab %d", qPrintable(language), tab)
                << language << QString::number(tab);
        // Dialogs that panels open; they are built in the language of that moment.
        for (const char *dialog : {"mix", "warning", "advanced"})
            QTest::addRow("%s, %s", qPrintable(language), dialog)
                << language << QString::fromLatin1(dialog);
    }
}

void TestGeometry::controlsAndTexts_haveTheirRoom()
{
    QFETCH(const QString, language);
    QFETCH(const QString, window);
    const ShippedTranslation translation(language);
    QVERIFY(translation.isInstalled());

    QStringList faults;
    if (window == QLatin1String("advanced")) {
        faults = faultsOfAdvancedSetup();
    } else if (window == QLatin1String("mix") || window == QLatin1String("warning")) {
        faults = faultsOfMixSetting(window == QLatin1String("warning"));
    } else {
        m_rig.window().updateLanguage();
        m_rig.tabs()->setCurrentIndex(window.toInt());
        QVERIFY(m_rig.tabs()->currentWidget()->isVisible());
        faults = faultsOf(m_rig.window());
    }
    QCOMPARE(faults.join(QLatin1Char('\n')), QString());
}

void TestGeometry::faults_areFound_data()
{
    const Table<Spoil, QString> row("spoil", "fault");
    row("nothing", Spoil([](QLabel *, QCheckBox *) {}), QString());
    row("outside", Spoil([](QLabel *label, QCheckBox *) { label->move(-1, 0); }),
        QStringLiteral("stands out of its parent"));
    row("overlapping", Spoil([](QLabel *, QCheckBox *box) { box->move(99, 0); }),
        QStringLiteral("overlaps"));
    row("wide text",
        Spoil([](QLabel *label, QCheckBox *) { label->setText(QString(60, QLatin1Char('W'))); }),
        QStringLiteral("needs"));
    row("wide text beside the indicator", Spoil([](QLabel *, QCheckBox *box) {
            while (textWidth(box->fontMetrics(), box->text()) <= box->width() - 20)
                box->setText(box->text() + QLatin1Char('i'));
        }),
        QStringLiteral("needs"));
}

void TestGeometry::faults_areFound()
{
    QFETCH(const Spoil, spoil);
    QFETCH(const QString, fault);
    QWidget window;
    window.resize(300, 60);
    auto *label = new QLabel(QStringLiteral("label"), &window);
    label->setGeometry(0, 0, 100, 20);
    auto *box = new QCheckBox(QStringLiteral("box"), &window);
    box->setGeometry(100, 0, 120, 20);
    spoil(label, box);
    window.show();
    const QStringList found = faultsOf(window);
    QCOMPARE(found.size(), fault.isEmpty() ? 0 : 1);
    QVERIFY(fault.isEmpty() || found.constFirst().contains(fault));
}

QTEST_MAIN(TestGeometry)
#include "tst_geometry.moc"
