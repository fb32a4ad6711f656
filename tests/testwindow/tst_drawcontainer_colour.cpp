#include "dictionary.h"
#include "drawcontainer.h"
#include "textoracle.h"

#include <QtTest>

#include <memory>

// The name of the selected colour, as the centre overlay shows it.
class TestDrawContainerColour : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void colour_showsItsName_data();
    void colour_showsItsName();
    void colour_followsTheLanguage_data();
    void colour_followsTheLanguage();
    void colour_neverChosenStaysEmptyInAnotherLanguage();
    void colour_unknownShowsNoNameAndKeepsThePreviousForALanguageChange();
    void colour_isMatchedByItsUntranslatedName();

private:
    // The picture of the centre overlay with this text.
    QImage centreText(const QString &text) const
    {
        return TextOracle(m_window->size(), m_window->font())
            .with({m_window->width() / 2 - 20, m_window->height() / 2 - 10}, text)
            .image();
    }

    std::unique_ptr<DrawContainer> m_window;
};

void TestDrawContainerColour::init()
{
    m_window = std::make_unique<DrawContainer>();
    m_window->setPalette(blackPalette());
    m_window->setGeometry(100, 50, 300, 200);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QCursor::setPos(0, 0); // outside, so that the overlay is colour and grey level alone
}

void TestDrawContainerColour::colour_showsItsName_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("text");

    QTest::newRow("red") << QColor(Qt::red) << "红:";
    QTest::newRow("green") << QColor(Qt::green) << "绿:";
    QTest::newRow("blue") << QColor(Qt::blue) << "蓝:";
    QTest::newRow("white") << QColor(Qt::white) << "白:";
    QTest::newRow("yellow") << QColor(Qt::yellow) << "黄:";
    QTest::newRow("cyan") << QColor(Qt::cyan) << "青:";
    QTest::newRow("purple") << QColor(Qt::magenta) << "紫:";
    QTest::newRow("unknown") << QColor(1, 2, 3) << ":";
}

void TestDrawContainerColour::colour_showsItsName()
{
    QFETCH(QColor, color);
    QFETCH(QString, text);
    m_window->slot_keyEndPressed();

    m_window->slot_changeSelectedDrawColor(color);

    QCOMPARE(picture(*m_window), centreText(text));
}

void TestDrawContainerColour::colour_followsTheLanguage_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("source");

    QTest::newRow("red") << QColor(Qt::red) << "红";
    QTest::newRow("green") << QColor(Qt::green) << "绿";
    QTest::newRow("blue") << QColor(Qt::blue) << "蓝";
    QTest::newRow("white") << QColor(Qt::white) << "白";
    QTest::newRow("yellow") << QColor(Qt::yellow) << "黄";
    QTest::newRow("cyan") << QColor(Qt::cyan) << "青";
    QTest::newRow("purple") << QColor(Qt::magenta) << "紫";
}

void TestDrawContainerColour::colour_followsTheLanguage()
{
    QFETCH(QColor, color);
    QFETCH(QString, source);
    m_window->slot_keyEndPressed();
    m_window->slot_changeSelectedDrawColor(color);
    const Dictionary dictionary({{source, QStringLiteral("Translated")}});

    m_window->updateLanguage();

    QCOMPARE(picture(*m_window), centreText(QStringLiteral("Translated:")));
}

void TestDrawContainerColour::colour_neverChosenStaysEmptyInAnotherLanguage()
{
    m_window->slot_keyEndPressed();
    const Dictionary dictionary({{QStringLiteral("红"), QStringLiteral("Red")}});

    m_window->updateLanguage();

    QCOMPARE(picture(*m_window), centreText(QStringLiteral(":")));
}

void TestDrawContainerColour::colour_unknownShowsNoNameAndKeepsThePreviousForALanguageChange()
{
    m_window->slot_keyEndPressed();
    m_window->slot_changeSelectedDrawColor(Qt::yellow);
    m_window->slot_changeSelectedDrawColor(QColor(255, 255, 0, 128));
    QCOMPARE(picture(*m_window), centreText(QStringLiteral(":")));
    const Dictionary dictionary({{QStringLiteral("黄"), QStringLiteral("Yellow")}});

    m_window->updateLanguage();

    QCOMPARE(picture(*m_window), centreText(QStringLiteral("Yellow:")));
}

void TestDrawContainerColour::colour_isMatchedByItsUntranslatedName()
{
    m_window->slot_keyEndPressed();
    m_window->slot_changeSelectedDrawColor(Qt::red);
    const Dictionary dictionary({{QStringLiteral("红"), QStringLiteral("Red")},
                                 {QStringLiteral("绿"), QStringLiteral("Green")}});
    m_window->updateLanguage();

    // A translated name matches no row, so the name is shown but not remembered.
    m_window->slot_changeSelectedDrawColor(Qt::green);
    QCOMPARE(picture(*m_window), centreText(QStringLiteral("Green:")));
    m_window->updateLanguage();
    QCOMPARE(picture(*m_window), centreText(QStringLiteral("Red:")));
}

QTEST_MAIN(TestDrawContainerColour)
#include "tst_drawcontainer_colour.moc"
