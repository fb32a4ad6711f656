#include "framelessdialog.h"
#include "rows.h"
#include "titlebar.h"

#include <QTest>
#include <QWindow>

#include <memory>

using UX::Widgets::FramelessDialog;
using UX::Widgets::TitleBar;

// Where a dialog stands among the windows of the program, above all those always on top.
class TestFramelessDialogStacking : public QObject
{
    Q_OBJECT

private slots:
    void dialog_staysAboveAnOnTopWindow_data();
    void dialog_staysAboveAnOnTopWindow();
    void dialog_isOrdinaryWithoutAnOnTopWindow();
    void owner_dependsOnTheModality_data();
    void owner_dependsOnTheModality();
    void ownerOfAWindowModalDialog_isOnTopForItsTime_data();
    void ownerOfAWindowModalDialog_isOnTopForItsTime();
    void laterShow_findsItsOwnerAgain();
};

void TestFramelessDialogStacking::dialog_staysAboveAnOnTopWindow_data()
{
    addRows<bool>("isParent", {{"its parent", true}, {"another window", false}});
}

void TestFramelessDialogStacking::dialog_staysAboveAnOnTopWindow()
{
    QFETCH(bool, isParent);
    QWidget onTop(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    FramelessDialog dialog(isParent ? &onTop : nullptr);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setWindowTitle(QStringLiteral("title"));
    if (!isParent)
        onTop.show();
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    dialog.show();

    QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    QCOMPARE(dialog.findChild<TitleBar *>()->title(), QStringLiteral("title"));
}

void TestFramelessDialogStacking::dialog_isOrdinaryWithoutAnOnTopWindow()
{
    QWidget hidden(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint);
    FramelessDialog dialog;
    dialog.show();
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

void TestFramelessDialogStacking::owner_dependsOnTheModality_data()
{
    const QString main = QStringLiteral("main");
    const Table<Qt::WindowModality, bool, QString> row("modality", "hasOnTopWindow", "owner");
    row("not modal", Qt::NonModal, true, QStringLiteral("on top"));
    row("window modal", Qt::WindowModal, true, main);
    row("program modal", Qt::ApplicationModal, true, QString());
    row("not modal, alone", Qt::NonModal, false, main);
    row("window modal, alone", Qt::WindowModal, false, main);
    row("program modal, alone", Qt::ApplicationModal, false, main);
}

void TestFramelessDialogStacking::owner_dependsOnTheModality()
{
    QFETCH(const Qt::WindowModality, modality);
    QFETCH(const bool, hasOnTopWindow);
    QWidget main;
    main.setWindowTitle(QStringLiteral("main"));
    main.show();
    QWidget onTop(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint);
    onTop.setWindowTitle(QStringLiteral("on top"));
    onTop.setVisible(hasOnTopWindow);
    FramelessDialog dialog(&main);
    dialog.setWindowModality(modality);
    dialog.show();

    const QWindow *found = dialog.windowHandle()->transientParent();
    QTEST(found ? found->title() : QString(), "owner");
    QCOMPARE(dialog.parentWidget(), &main);
}

void TestFramelessDialogStacking::ownerOfAWindowModalDialog_isOnTopForItsTime_data()
{
    addRows<bool>("byDestruction", {{"closed", false}, {"destroyed", true}});
}

void TestFramelessDialogStacking::ownerOfAWindowModalDialog_isOnTopForItsTime()
{
    QFETCH(const bool, byDestruction);
    QWidget main;
    main.show();
    QWidget onTop(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint);
    onTop.show();
    auto dialog = std::make_unique<FramelessDialog>(&main);
    dialog->open();
    const QWindow *owner = main.windowHandle();
    QVERIFY(owner->flags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(main.isVisible());
    if (byDestruction)
        dialog.reset();
    else
        dialog->close();
    QVERIFY(!owner->flags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(main.isVisible());
}

void TestFramelessDialogStacking::laterShow_findsItsOwnerAgain()
{
    QWidget main;
    main.show();
    QWidget onTop(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint);
    onTop.show();
    FramelessDialog dialog(&main);
    dialog.show();
    QCOMPARE(dialog.windowHandle()->transientParent(), onTop.windowHandle());
    dialog.hide();
    onTop.hide();
    dialog.show();
    QCOMPARE(dialog.windowHandle()->transientParent(), main.windowHandle());
}

QTEST_MAIN(TestFramelessDialogStacking)
#include "tst_framelessdialog_stacking.moc"
