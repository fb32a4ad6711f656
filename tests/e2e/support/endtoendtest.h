#pragma once

#include "toolprocess.h"
#include "virtualdesktop.h"

#include <QObject>

#include <memory>

/// Base of the end-to-end tests: one desktop for all functions of a test, and
/// a fresh program for each function.
class EndToEndTest : public QObject
{
    Q_OBJECT

protected:
    VirtualDesktop &desktop() { return *m_desktop; }
    /// The program of this test function, made at the first call.
    ToolProcess &tool();
    /// Ends that program and makes a new one in a new application directory.
    ToolProcess &newTool();

    /// The desktop that the test runs on; a single screen if not overridden.
    virtual std::unique_ptr<VirtualDesktop> createDesktop() const;

    /// Starts tool(), moves the control window clear of the test window's
    /// default place and gives it the keyboard. False, with the reason logged,
    /// if that fails.
    bool startTool(ToolProcess::TestWindow testWindow = ToolProcess::TestWindow::Shown);

    /// The same with the test window stored at this place, a square; does not wait until it is
    /// there.
    bool startToolAt(const QRect &place);
    /// Returns when the window manager and the program have handled everything; false if they
    /// do not.
    bool settle();
    /// The test window's place in "config.ini".
    QRect stored();
    /// Whether this place is stored once the time that a change may take has passed; logs what is
    /// stored instead if not.
    bool isStored(const QRect &place);

    /// Whether every pixel of the test window's place shows this colour.
    bool isTestWindowFilled(QRgb colour);
    /// The same, once it has come to be so within the usual deadline; logs what
    /// is there instead if not.
    bool testWindowTurns(QRgb colour);
    /// Whether the test window covers exactly this area once the usual deadline
    /// has passed; logs where it is instead if not.
    bool testWindowCovers(const QRect &area);

private slots:
    void initTestCase();
    void cleanup();

private:
    void saveEvidence();

    std::unique_ptr<VirtualDesktop> m_desktop;
    std::unique_ptr<ToolProcess> m_tool;
};
