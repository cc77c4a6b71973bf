#include "support/PhoneTest.h"

#include <QtCore/QRegularExpression>

void PhoneTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    journal.clear();
    handset = std::make_unique<InstalledHandset>();
    traces = std::make_unique<TraceCapture>();
}

void PhoneTest::cleanup()
{
    traces.reset();
    handset.reset();
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a test function left a window behind");
}

QString differenceOf(const QStringList &actual, const QStringList &expected)
{
    qsizetype equal = 0;
    while (equal < actual.size() && equal < expected.size() && actual.at(equal) == expected.at(equal))
        ++equal;
    if (equal == actual.size() && equal == expected.size())
        return QString();
    const QString indent = QStringLiteral("\n    ");
    return QStringLiteral("different from line %1 on\n  actual:").arg(equal + 1) + indent + actual.join(indent) +
           QStringLiteral("\n  expected:") + indent + expected.join(indent);
}

#include "moc_PhoneTest.cpp"
