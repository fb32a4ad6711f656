#pragma once

#include "panelrig.h"

#include <QObject>

#include <memory>

// Adds the column "value" with what is neither a number nor a colour to any key of a file.
void addWrongValues();

struct PanelFacts
{
    // What the panel leaves in a file that held nothing.
    QVariantMap defaults;
    // Lines of the settings file with other values than the defaults for all of these keys.
    QByteArray stored;
    // More such lines, each time in addition, that restoring may not write either.
    QList<QByteArray> alsoStored;
    // All in the order of the form, accessible names where there are no texts, in Chinese and with
    // "|" between them.
    QString texts;
};

// What is asked of every panel. The test of a panel derives from PanelTest, says what the panel
// holds, and goes on with what is the panel's own.
class PanelTable : public QObject
{
    Q_OBJECT

protected:
    virtual std::unique_ptr<AnyPanelRig> start(const QByteArray &contents) const = 0;

    virtual PanelFacts facts() const = 0;
    // Calls edit() for everything that the operator changes.
    virtual void addEdits() const = 0;

    // After a start with the lines of stored() and these, the operator does something (as
    // AnyPanelRig::operate has it), the panel emits these signals (as SignalLog has them), and the
    // key gets this value in the file.
    static void edit(const char *name, const QByteArray &lines, const char *control,
                     const QVariant &value, const char *signalLog, const char *key,
                     const char *expected);

private slots:
    void missingFile_staysMissingUntilTheEnd();
    void restoring_writesNothing_data();
    void restoring_writesNothing();
    void wrongNumbers_countAsMissing_data() { addWrongValues(); }
    void wrongNumbers_countAsMissing();
    void edit_isToldSavedSoonAndRestored_data();
    void edit_isToldSavedSoonAndRestored();
    void language_isAppliedToEveryText();
    void language_thatDoesNotFitIsElided();
};

template<typename Rig>
class PanelTest : public PanelTable
{
protected:
    std::unique_ptr<AnyPanelRig> start(const QByteArray &contents) const override
    {
        return std::make_unique<Rig>(contents);
    }
};
