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

class ClassNameTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void it_names_the_most_derived_class_through_a_base();
    void a_class_without_the_macro_has_its_bases_name();
};

void ClassNameTest::it_names_the_most_derived_class_through_a_base()
{
    const Derived derived;
    const Base &base = derived;
    QCOMPARE(QByteArray(Base().className()).split(':').last(), QByteArray("Base"));
    QCOMPARE(QByteArray(base.className()).split(':').last(), QByteArray("Derived"));
    QCOMPARE(base.className(), base.metaObject()->className());
    QCOMPARE(derived.number(), 0);
}

void ClassNameTest::a_class_without_the_macro_has_its_bases_name()
{
    const Silent silent;
    QCOMPARE(QByteArray(silent.className()).split(':').last(), QByteArray("Derived"));
    QCOMPARE(QByteArray(silent.metaObject()->className()).split(':').last(), QByteArray("Silent"));
}

KAV_TEST_GROUP(ClassNameTest, QCoreApplication);
#include "tst_classname.moc"
