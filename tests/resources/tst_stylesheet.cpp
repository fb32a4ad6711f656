#include "commonhelper.h"
#include "rows.h"

#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QResource>
#include <QtTest>

/// Checks that the compiled-in style sheet is whole and that its sizes and colours arrive.
class TestStyleSheet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void styleSheet_isStoredZlibCompressed();
    void styleSheet_raisesNoWarning();
    void styleSheet_namesEverySelector_data();
    void styleSheet_namesEverySelector();
    void styleSheet_refersToExistingImagesOnly();
    void plainWidget_hasTheDefaultBackground();
    void swatch_isAFieldOfItsColour_checkedInARing_data();
    void swatch_isAFieldOfItsColour_checkedInARing();
    void lamp_isRoundAndLit_data();
    void lamp_isRoundAndLit();
    void roundedButton_keepsItsLimits_data();
    void roundedButton_keepsItsLimits();

private:
    QString m_sheet;
    QString m_selectors; ///< the sheet without comments and declarations
};

namespace {

constexpr QRgb pageBackground = qRgb(48, 50, 56);

/// What keepWarnings has seen.
Q_GLOBAL_STATIC(QStringList, warnings)

void keepWarnings(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings->append(text);
}

/// The warnings raised when `sheet` is applied to a widget of each kind that it styles.
QStringList warningsOf(const QString &sheet)
{
    warnings->clear();
    const QtMessageHandler previous = qInstallMessageHandler(keepWarnings);
    {
        QWidget window;
        QLabel label(&window);
        QPushButton button(&window);
        QRadioButton radioButton(&window);
        window.setStyleSheet(sheet);
        const QList<QWidget *> children = window.findChildren<QWidget *>();
        for (QWidget *widget : children)
            widget->ensurePolished();
        window.ensurePolished();
    }
    qInstallMessageHandler(previous);
    return *warnings;
}

/// A styled window with one control in it, rendered without being shown.
template<class Control>
class StyledControl
{
public:
    StyledControl(const QString &sheet, const QString &objectName)
        : control(new Control(&window))
    {
        control->setObjectName(objectName);
        window.setStyleSheet(sheet);
        control->ensurePolished();
        control->adjustSize();
        control->move(0, 0);
        window.resize(control->size());
    }
    QImage image() { return window.grab().toImage(); }

    QWidget window;
    Control *control; ///< owned by the window
};

} // namespace

void TestStyleSheet::initTestCase()
{
    m_sheet = CommonHelper::setStyle(QStringLiteral(":/qss/global_style.css"));
    QVERIFY(!m_sheet.isEmpty());
    m_selectors = m_sheet;
    m_selectors.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"),
                                          QRegularExpression::DotMatchesEverythingOption));
    m_selectors.remove(QRegularExpression(QStringLiteral("\\{[^}]*\\}")));
}

void TestStyleSheet::styleSheet_isStoredZlibCompressed()
{
    const QResource resource(QStringLiteral(":/qss/global_style.css"));
    QVERIFY(resource.isValid());
#if QT_VERSION >= QT_VERSION_CHECK(5, 13, 0)
    QCOMPARE(resource.compressionAlgorithm(), QResource::ZlibCompression);
#else
    QVERIFY(resource.isCompressed());
#endif
    const QByteArray plain = qUncompress(resource.data(), int(resource.size()));
    QCOMPARE(QString::fromUtf8(plain), m_sheet);
}

void TestStyleSheet::styleSheet_raisesNoWarning()
{
    QCOMPARE(warningsOf(m_sheet), QStringList());
    QVERIFY(!warningsOf(m_sheet + QStringLiteral("QWidget {{")).isEmpty()); // a broken one does
}

void TestStyleSheet::styleSheet_namesEverySelector_data()
{
    QTest::addColumn<QRegularExpression>("selector");

    for (const char *type :
         {"QWidget", "QtColorButton", "QComboBox", "QAbstractSpinBox", "QCheckBox", "QRadioButton",
          "QSlider", "QScrollBar", "QScrollArea", "QTabWidget", "QTabBar", "QToolButton",
          "QToolTip", "QMenu", "QListView", "QLabel", "QPushButton", "QDialog", "QFrame"})
        QTest::newRow(type) << QRegularExpression(
            QStringLiteral("(?<![\\w#\\[])%1(?!\\w)").arg(QLatin1String(type)));
    const QList<QByteArray> names =
        QByteArray("DialogPushBtn normalContentPushBtn beginPushBtn levelPushBtn "
                   "ContentSplitLabel centralWidget posLabel labelColor toolButtonColorPick "
                   "radioButtonHorizontal radioButtonVertical radioButtonSlantLeft "
                   "radioButtonSlantRight pushButtonOld pushButtonMerged buttonFont "
                   "buttonModeLine buttonScan radioButtonRed radioButtonGreen radioButtonBlue "
                   "radioButtonWhite radioButtonYellow radioButtonCyan radioButtonPurple "
                   "signalGreenButton signalGreyButton AdvancedSetup MixSetting")
            .split(' ');
    for (const QByteArray &name : names)
        QTest::newRow(name) << QRegularExpression(
            QStringLiteral("#%1(?!\\w)").arg(QLatin1String(name)));
    for (const char *property :
         {"isFramelessCentralWidget", "isTitleBar", "isTitleBarTitle", "isTitleBarLogoButton",
          "isTitleBarCloseButton", "isTitleBarMinButton", "isTitleBarMaxButton",
          "isTitleBarRestoreButton", "isToolBarButton", "isDelete", "noCheckedBG"})
        QTest::newRow(property) << QRegularExpression(
            QStringLiteral("\\[%1=\"true\"\\]").arg(QLatin1String(property)));
}

void TestStyleSheet::styleSheet_namesEverySelector()
{
    QFETCH(QRegularExpression, selector);
    QVERIFY(selector.match(m_selectors).hasMatch());
}

void TestStyleSheet::styleSheet_refersToExistingImagesOnly()
{
    static const QRegularExpression url(QStringLiteral("url\\(\"?([^\")]*)\"?\\)"));
    QRegularExpressionMatchIterator matches = url.globalMatch(m_sheet);
    int count = 0;
    while (matches.hasNext()) {
        const QString path = matches.next().captured(1);
        QVERIFY2(!QImage(path).isNull(), qPrintable(path));
        ++count;
    }
    QCOMPARE(count, m_sheet.count(QStringLiteral("url(")));
    QVERIFY(count > 0);
}

void TestStyleSheet::plainWidget_hasTheDefaultBackground()
{
    QWidget window;
    window.setStyleSheet(m_sheet);
    window.resize(10, 10);
    QCOMPARE(window.grab().toImage().pixel(5, 5), pageBackground);
}

void TestStyleSheet::swatch_isAFieldOfItsColour_checkedInARing_data()
{
    const Table<QColor> row("color");
    row("radioButtonRed", Qt::red);
    row("radioButtonGreen", Qt::green);
    row("radioButtonBlue", Qt::blue);
    row("radioButtonWhite", Qt::white);
    row("radioButtonYellow", Qt::yellow);
    row("radioButtonCyan", Qt::cyan);
    row("radioButtonPurple", Qt::magenta);
}

void TestStyleSheet::swatch_isAFieldOfItsColour_checkedInARing()
{
    QFETCH(QColor, color);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    StyledControl<QPushButton> pushButton(m_sheet, name);
    QCOMPARE(pushButton.control->size(), QSize(42, 42));
    StyledControl<QRadioButton> radioButton(m_sheet, name);
    QCOMPARE(radioButton.control->size(), QSize(42, 42));
    for (const QImage &image : {pushButton.image(), radioButton.image()}) {
        for (const QPoint point : {QPoint(21, 21), QPoint(0, 21), QPoint(41, 21), QPoint(21, 41)})
            QCOMPARE(image.pixelColor(point), color);
    }

    pushButton.control->setCheckable(true);
    pushButton.control->setChecked(true);
    QCOMPARE(pushButton.control->size(), QSize(42, 42));
    const QImage image = pushButton.image();
    const QColor accent(230, 112, 7);
    QCOMPARE(image.pixelColor(0, 21), accent);
    QCOMPARE(image.pixelColor(1, 21), accent);
    QCOMPARE(image.pixel(2, 21), pageBackground);
    QCOMPARE(image.pixelColor(8, 21), color);
}

void TestStyleSheet::lamp_isRoundAndLit_data()
{
    const Table<const char *, QColor> row("name", "color");
    row("green", "signalGreenButton", {36, 255, 36});
    row("grey", "signalGreyButton", {99, 99, 99});
}

void TestStyleSheet::lamp_isRoundAndLit()
{
    QFETCH(QString, name);
    QFETCH(QColor, color);

    StyledControl<QPushButton> lamp(m_sheet, name);
    QCOMPARE(lamp.control->size(), QSize(15, 15));
    const QImage image = lamp.image();
    QCOMPARE(image.pixelColor(7, 7), color);
    for (const QPoint corner : {QPoint(0, 0), QPoint(14, 0), QPoint(0, 14), QPoint(14, 14)})
        QCOMPARE(image.pixel(corner), pageBackground);

    lamp.control->setEnabled(false);
    QCOMPARE(lamp.image().pixelColor(7, 7), color);
}

void TestStyleSheet::roundedButton_keepsItsLimits_data()
{
    const Table<const char *, int> row("name", "widest");
    row("dialog", "DialogPushBtn", QWIDGETSIZE_MAX);
    row("content", "normalContentPushBtn", 70);
    row("begin", "beginPushBtn", 60);
    row("level", "levelPushBtn", 80);
}

void TestStyleSheet::roundedButton_keepsItsLimits()
{
    QFETCH(QString, name);

    StyledControl<QPushButton> button(m_sheet, name);
    QVERIFY(button.control->minimumHeight() >= 30);
    QTEST(button.control->maximumWidth(), "widest");
    button.control->resize(70, 30);
    button.window.resize(70, 30);
    const QImage image = button.image();
    QCOMPARE(image.pixelColor(button.control->width() / 2, 0), QColor(230, 112, 7));
    QCOMPARE(image.pixel(0, 0), pageBackground); // outside the rounded corner
}

QTEST_MAIN(TestStyleSheet)

#include "tst_stylesheet.moc"
