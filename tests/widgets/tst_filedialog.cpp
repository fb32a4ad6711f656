#include "desktopscale.h"
#include "filedialog.h"
#include "rows.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

class TestFileDialog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { FileDialog::setAnswer({}); }

    void answer_isAskedWithWhereTheDialogBegins();
    void withoutAnswer_theOperatorIsAskedAboveAllWindows_data();
    void withoutAnswer_theOperatorIsAskedAboveAllWindows();
    void texts_followTheScaleOfTheControls();
};

void TestFileDialog::answer_isAskedWithWhereTheDialogBegins()
{
    QStringList asked;
    FileDialog::setAnswer([&asked](const QString &start) {
        asked << start;
        return QStringLiteral("chosen");
    });
    QCOMPARE(FileDialog::getOpenFileName(nullptr, QString(), QStringLiteral("."), QString()),
             QStringLiteral("chosen"));
    QCOMPARE(asked, QStringList(QStringLiteral(".")));
}

void TestFileDialog::withoutAnswer_theOperatorIsAskedAboveAllWindows_data()
{
    addRows<bool>("accepted", {{"chosen", true}, {"cancelled", false}});
}

void TestFileDialog::withoutAnswer_theOperatorIsAskedAboveAllWindows()
{
    QFETCH(const bool, accepted);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.png")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QWidget parent;
    bool asExpected = false;
    QTimer::singleShot(0, this, [&] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        // Where it begins is the file that was chosen the last time, and so is selected.
        asExpected = dialog->parentWidget() == &parent
                     && dialog->windowTitle() == QStringLiteral("title")
                     && dialog->directory() == QDir(folder.path())
                     && dialog->selectedFiles() == QStringList(file.fileName())
                     && dialog->nameFilters() == QStringList(QStringLiteral("Pictures (*.png)"))
                     && dialog->fileMode() == QFileDialog::ExistingFile
                     && dialog->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        static_cast<QDialog *>(dialog)->done(accepted ? QDialog::Accepted : QDialog::Rejected);
    });
    const QString chosen = FileDialog::getOpenFileName(
        &parent, QStringLiteral("title"), file.fileName(), QStringLiteral("Pictures (*.png)"));
    QVERIFY(asExpected);
    QCOMPARE(chosen, accepted ? file.fileName() : QString());
}

void TestFileDialog::texts_followTheScaleOfTheControls()
{
    QFont font;
    DesktopScale::request(QStringLiteral("2"));
    QTimer::singleShot(0, this, [&font] {
        font = QApplication::activeModalWidget()->findChild<QLabel *>()->font();
        QApplication::activeModalWidget()->close();
    });
    FileDialog::getOpenFileName(nullptr, QString(), QStringLiteral("."), QString());
    DesktopScale::request(QStringLiteral("1"));
    QCOMPARE(font.pixelSize(), 2 * DesktopScale::inPixels(QApplication::font()).pixelSize());
}

QTEST_MAIN(TestFileDialog)
#include "tst_filedialog.moc"
