// className(), which the embedded edition has and the installed Qt lacks.
#include "qt/classname.h"
#include "support/TestGroup.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

namespace {

class Base : public QObject
{
    Q_OBJECT
    KAV_CLASS_NAME
};

class Derived : public Base
{
    Q_OBJECT
    KAV_CLASS_NAME

    int membersAfterTheMacroArePrivate = 0;

public:
    int number() const { return membersAfterTheMacroArePrivate; }
};

class Silent : public Derived
{
    Q_OBJECT
};

} // namespace

class TestClassName : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void itNamesTheMostDerivedClassThroughABase();
    void aClassWithoutTheMacroHasItsBasesName();
};

void TestClassName::itNamesTheMostDerivedClassThroughABase()
{
    const Derived derived;
    const Base &base = derived;
    QCOMPARE(QByteArray(Base().className()).split(':').last(), QByteArray("Base"));
    QCOMPARE(QByteArray(base.className()).split(':').last(), QByteArray("Derived"));
    QCOMPARE(base.className(), base.metaObject()->className());
    QCOMPARE(derived.number(), 0);
}

void TestClassName::aClassWithoutTheMacroHasItsBasesName()
{
    const Silent silent;
    QCOMPARE(QByteArray(silent.className()).split(':').last(), QByteArray("Derived"));
    QCOMPARE(QByteArray(silent.metaObject()->className()).split(':').last(), QByteArray("Silent"));
}

KAV_TEST_GROUP(TestClassName, QCoreApplication);
#include "tst_classname.moc"
