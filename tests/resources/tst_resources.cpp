#include <QDataStream>
#include <QFile>
#include <QImage>
#include <QtTest>

/// Checks the images and the style sheet that are compiled into the program.
class TestResources : public QObject
{
    Q_OBJECT

private slots:
    void image_decodesAtItsSize_data();
    void image_decodesAtItsSize();
    void statesOfAControl_lookDifferent_data();
    void statesOfAControl_lookDifferent();
    void windowsIcon_holdsEverySize();
    void macIcon_holdsItsEntries();
};

namespace {

QString imagePath(const QString &name)
{
    return QStringLiteral(":/Resource/Image/") + name;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool hasVisiblePixel(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                return true;
        }
    }
    return false;
}

void addImage(const QString &name, const QSize &size)
{
    QTest::newRow(qPrintable(name)) << name << size;
}

void addStates(const QString &pattern, const char *states)
{
    QTest::newRow(qPrintable(pattern))
        << pattern + QStringLiteral(".png") << QString::fromLatin1(states).split(QLatin1Char(' '));
}

QStringList titleButtons()
{
    return {QStringLiteral("btn_close_"), QStringLiteral("btn_max_"), QStringLiteral("btn_mix_"),
            QStringLiteral("btn_return_")};
}

QStringList checkBoxStates()
{
    return {QStringLiteral("check"), QStringLiteral("check_disable"), QStringLiteral("uncheck"),
            QStringLiteral("uncheck_hover"), QStringLiteral("uncheck_disable")};
}

} // namespace

void TestResources::image_decodesAtItsSize_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");

    const QStringList buttons = titleButtons();
    for (const QString &button : buttons) {
        for (const char *state : {"normal", "hover", "pressed"}) {
            const QString name = QStringLiteral("titleBar/") + button + QLatin1String(state);
            addImage(name + QStringLiteral(".png"), {28, 28});
            addImage(name + QStringLiteral("@2x.png"), {56, 56});
        }
    }
    addImage(QStringLiteral("titleBar/sign.png"), {16, 16});
    for (const char *name :
         {"btn_ArrowDown_normalDouble", "btn_ArrowDown_disableDouble", "btn_ArrowUp_normalDouble",
          "combBox_normal", "combBox_down", "combBox_disabled"})
        addImage(QStringLiteral("projectTab/%1.png").arg(QLatin1String(name)), {16, 16});
    for (const char *name :
         {"radiobutton_check", "radiobutton_check_hover", "radiobutton_uncheck",
          "radiobutton_uncheck_hover", "checked", "unchecked", "disabled_checked",
          "disabled_unchecked", "btn_form_radiobutton_selected_disable",
          "btn_form_radiobutton_unselected", "btn_form_radiobutton_unselected_hover",
          "btn_form_radiobutton_unselected_disable"})
        addImage(QStringLiteral("radiobutton/%1.png").arg(QLatin1String(name)), {14, 14});
    for (const char *name : {"up", "upDark", "down", "downDark"})
        addImage(QStringLiteral("scrollBar/%1.png").arg(QLatin1String(name)), {10, 8});
    for (const char *way : {"up", "down"}) {
        for (const char *state : {"normal", "hover", "pressed", "disabled"})
            addImage(
                QStringLiteral("spinbox/%1_%2.png").arg(QLatin1String(way), QLatin1String(state)),
                {9, 7});
    }
    const QStringList checkStates = checkBoxStates();
    for (const QString &state : checkStates) {
        const QString name = QStringLiteral("checkBox/btn_form_chackbox_") + state;
        addImage(name + QStringLiteral(".png"), {14, 14});
        addImage(name + QStringLiteral("_2x.png"), {28, 28});
    }
}

void TestResources::image_decodesAtItsSize()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);

    QVERIFY2(QFile::exists(imagePath(name)), "not compiled in");
    const QImage image(imagePath(name), "PNG");
    QVERIFY2(!image.isNull(), "does not decode");
    QCOMPARE(image.size(), size);
    QVERIFY2(hasVisiblePixel(image), "wholly transparent");
}

void TestResources::statesOfAControl_lookDifferent_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("states");

    const QStringList buttons = titleButtons();
    for (const QString &button : buttons) {
        addStates(QStringLiteral("titleBar/") + button + QStringLiteral("%1"),
                  "normal hover pressed");
        addStates(QStringLiteral("titleBar/") + button + QStringLiteral("%1@2x"),
                  "normal hover pressed");
    }
    addStates(QStringLiteral("spinbox/up_%1"), "normal hover pressed disabled");
    addStates(QStringLiteral("spinbox/down_%1"), "normal hover pressed disabled");
    addStates(QStringLiteral("checkBox/btn_form_chackbox_%1"),
              "check check_disable uncheck uncheck_hover uncheck_disable");
    addStates(QStringLiteral("checkBox/btn_form_chackbox_%1_2x"),
              "check check_disable uncheck uncheck_hover uncheck_disable");
    addStates(QStringLiteral("radiobutton/%1"),
              "radiobutton_check radiobutton_check_hover radiobutton_uncheck "
              "radiobutton_uncheck_hover disabled_checked disabled_unchecked");
    addStates(QStringLiteral("radiobutton/%1"),
              "checked unchecked disabled_checked disabled_unchecked");
    addStates(QStringLiteral("radiobutton/btn_form_radiobutton_%1"),
              "unselected unselected_hover unselected_disable selected_disable");
    addStates(QStringLiteral("projectTab/combBox_%1"), "normal down disabled");
    addStates(QStringLiteral("projectTab/btn_%1Double"),
              "ArrowDown_normal ArrowDown_disable ArrowUp_normal");
    addStates(QStringLiteral("scrollBar/%1"), "up upDark down downDark");
}

void TestResources::statesOfAControl_lookDifferent()
{
    QFETCH(QString, pattern);
    QFETCH(QStringList, states);

    QVector<QImage> seen;
    for (const QString &state : qAsConst(states)) {
        const QImage image =
            QImage(imagePath(pattern.arg(state))).convertToFormat(QImage::Format_ARGB32);
        QVERIFY2(!image.isNull(), qPrintable(state));
        QVERIFY2(!seen.contains(image),
                 qPrintable(state + QStringLiteral(" repeats another state")));
        seen.append(image);
    }
}

void TestResources::windowsIcon_holdsEverySize()
{
    const QByteArray icon = contents(imagePath(QStringLiteral("logo/TarnTestTool.ico")));
    QDataStream stream(icon);
    stream.setByteOrder(QDataStream::LittleEndian);
    quint16 reserved = 1;
    quint16 type = 0;
    quint16 count = 0;
    stream >> reserved >> type >> count;
    QCOMPARE(reserved, quint16(0));
    QCOMPARE(type, quint16(1));

    QVector<int> sizes;
    for (int i = 0; i < count; ++i) {
        quint8 width = 0;
        quint8 height = 0;
        quint8 skipped = 0;
        quint16 planes = 0;
        quint16 depth = 0;
        quint32 length = 0;
        quint32 offset = 0;
        stream >> width >> height >> skipped >> skipped >> planes >> depth >> length >> offset;
        QCOMPARE(stream.status(), QDataStream::Ok);
        const int side = width == 0 ? 256 : width; // 256 does not fit into the byte
        const QImage image = QImage::fromData(icon.mid(int(offset), int(length)), "PNG");
        QCOMPARE(image.size(), QSize(side, side));
        QCOMPARE(height, width);
        QCOMPARE(depth, quint16(32));
        QVERIFY(hasVisiblePixel(image));
        sizes.append(side);
    }
    QCOMPARE(sizes, QVector<int>({16, 24, 32, 48, 64, 128, 256}));
}

void TestResources::macIcon_holdsItsEntries()
{
    const QByteArray icon = contents(imagePath(QStringLiteral("logo/TarnTestTool_Mac.icns")));
    QCOMPARE(icon.left(4), QByteArrayLiteral("icns"));
    QDataStream stream(icon.mid(4));
    quint32 total = 0;
    stream >> total;
    QCOMPARE(total, quint32(icon.size()));

    int entries = 0;
    for (quint32 position = 8; position < total; ++entries) {
        QDataStream entry(icon.mid(int(position) + 4, 4));
        quint32 length = 0;
        entry >> length;
        QVERIFY(length > 8);
        QVERIFY(length <= total - position);
        position += length;
    }
    QVERIFY2(entries >= 3, qPrintable(QString::number(entries)));
}

QTEST_GUILESS_MAIN(TestResources)

#include "tst_resources.moc"
