// What every test of the phone starts from.
#pragma once

#include "support/Journal.h"
#include "support/ScriptedHandset.h"
#include "support/TestGroup.h"
#include "support/TraceCapture.h"

#include <QtCore/QObject>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <memory>

/// Before each test function: an empty journal, a scripted handset of its own, traces caught, and a failure for
/// any warning. Inherit, and override init() only to call it first.
class PhoneTest : public QObject
{
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    Journal &journal = Journal::shared();
    std::unique_ptr<InstalledHandset> handset;
    std::unique_ptr<TraceCapture> traces;

    Script &script() const { return handset->script(); }
};

/// Empty when both lists are equal; otherwise where they part, and both.
QString differenceOf(const QStringList &actual, const QStringList &expected);

/// QCOMPARE() for lists of lines. A failure shows them whole, which the message of a failed comparison would cut.
#define COMPARE_LINES(ACTUAL, EXPECTED)                                                                           \
    do {                                                                                                          \
        const QString difference = differenceOf(ACTUAL, EXPECTED);                                                \
        if (!difference.isEmpty()) {                                                                              \
            qInfo("%s", qPrintable(difference));                                                                  \
            QFAIL("the lines differ, see above");                                                                 \
        }                                                                                                         \
    } while (false)
