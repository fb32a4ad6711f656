#include "mainwindowrig.h"
#include "rows.h"
#include "scraboutwidget.h"
#include "shippedtranslation.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

class TestScrAboutWidget : public QObject
{
    Q_OBJECT

private slots:
    void fiveLabels_standOneUnderTheOther();
    void content_isBannerThreeNumberedLinesAndATelephone_data();
    void content_isBannerThreeNumberedLinesAndATelephone();
    void height_isAtMost192();
    void everyText_fitsWithTheFontOfTheStyleSheet_data() { ShippedTranslation::addRows(); }
    void everyText_fitsWithTheFontOfTheStyleSheet();

private:
    static QVector<QLabel *> labelsOf(const QWidget &card);
    static QString fullText(const QLabel *label);
};

// From the top down.
QVector<QLabel *> TestScrAboutWidget::labelsOf(const QWidget &card)
{
    QVector<QLabel *> labels = card.findChildren<QLabel *>().toVector();
    std::sort(labels.begin(), labels.end(),
              [](const QLabel *one, const QLabel *other) { return one->y() < other->y(); });
    return labels;
}

// A text may be elided where no style sheet gives it the small font.
QString TestScrAboutWidget::fullText(const QLabel *label)
{
    return label->toolTip().isEmpty() ? label->text() : label->toolTip();
}

void TestScrAboutWidget::fiveLabels_standOneUnderTheOther()
{
    ScrAboutWidget card;
    card.show();
    const QVector<QLabel *> labels = labelsOf(card);
    QCOMPARE(labels.size(), 5);
    for (int index = 0; index < labels.size(); ++index) {
        QCOMPARE(labels.at(index)->minimumWidth(), 400);
        QCOMPARE(labels.at(index)->x(), labels.at(0)->x());
        if (index > 0)
            QVERIFY(labels.at(index)->y() > labels.at(index - 1)->geometry().bottom());
    }
}

void TestScrAboutWidget::content_isBannerThreeNumberedLinesAndATelephone_data()
{
    const Table<const char *, const char *> row("language", "telephone");
    row("zh_CN", "zh_CN", "电话");
    row("en", "en", "telephone");
    row("fr", "fr", "téléphone");
    row("de", "de", "Telefon");
    row("es", "es", "teléfono");
    row("ru", "ru", "телефон");
}

void TestScrAboutWidget::content_isBannerThreeNumberedLinesAndATelephone()
{
    QFETCH(const QString, language);
    QFETCH(const QString, telephone);
    const ShippedTranslation translation(language);
    QVERIFY(translation.isInstalled());
    ScrAboutWidget card;
    card.updateLanguage();
    const QVector<QLabel *> labels = labelsOf(card);
    QVERIFY(labels.at(0)->text().contains(QLatin1String("LED"))
            || labels.at(0)->text().contains(QStringLiteral("светодиод")));
    for (int line = 1; line <= 3; ++line)
        QVERIFY(labels.at(line)->text().startsWith(QStringLiteral("%1. ").arg(line)));
    // The range that no subscriber has.
    const QRegularExpression reservedNumber(QStringLiteral("\\+1 555-01\\d\\d$"));
    QVERIFY(fullText(labels.at(4)).contains(reservedNumber));
    QVERIFY(fullText(labels.at(4)).contains(telephone));
}

void TestScrAboutWidget::height_isAtMost192()
{
    ScrAboutWidget card;
    QCOMPARE(card.maximumHeight(), 192);
    card.resize(585, 400);
    card.show();
    QCOMPARE(card.height(), 192);
}

void TestScrAboutWidget::everyText_fitsWithTheFontOfTheStyleSheet()
{
    QFETCH(const QString, language);
    const ShippedTranslation translation(language);
    MainWindowRig rig;
    rig.start();
    rig.window().updateLanguage();
    QVERIFY(qobject_cast<ScrAboutWidget *>(rig.tabs()->widget(6)));
    const QVector<QLabel *> labels = labelsOf(*rig.tabs()->widget(6));
    QVERIFY(labels.at(0)->font().pixelSize() > labels.at(1)->font().pixelSize()); // the banner
    for (const QLabel *label : labels) {
        QCOMPARE(label->toolTip(), QString());
        QVERIFY2(label->fontMetrics().boundingRect(label->text()).width() <= label->width(),
                 qPrintable(label->text()));
    }
}

QTEST_MAIN(TestScrAboutWidget)
#include "tst_scraboutwidget.moc"
