// A screen reader over the real accessibility bus.
#pragma once

#include "qt/qcop/PrivateBus.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QProcess>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include <optional>

/// The desktop's accessibility bus with its registry, on a session bus of its own; and who reads there what programs show.
class AtSpi : public QObject
{
    Q_OBJECT

public:
    struct Element {
        QString service;
        QString path;
        QString role; ///< as the protocol names it, "push button"
        QString name;
        QString description;
        quint64 states = 0;

        bool has(int state) const { return states >> state & 1; }
    };
    // The protocol's numbers.
    enum State { Active = 1, Focused = 12, Modal = 16, Selected = 23, Sensitive = 24, Showing = 25 };

    AtSpi();
    ~AtSpi() override;

    /// False when one of them does not come up.
    bool isRunning() const { return bus.isConnected(); }
    QString sessionBus() const { return session.address(); }

    /// Every element on show of all programs, from the windows down.
    QList<Element> shown();
    /// The first of that role and name; nothing where none is on show.
    std::optional<Element> find(const QString &role, const QString &name);
    /// The names of those on show inside of `outer`, itself not included.
    QStringList namesIn(const Element &outer);
    /// Does what the element is for; false where nothing can be done with it.
    bool press(const Element &element);

    /// Which elements have appeared since the last time: "role: name".
    QStringList appeared();
    /// Where the focus was told to be last: "role: name".
    QString lastFocus() const { return focus; }

private slots:
    void hear(const QDBusMessage &event);

private:
    QDBusMessage ask(const Element &element, const char *interface, const char *method,
                     const QVariantList &arguments = {});
    QString property(const Element &element, const char *name);
    QList<Element> childrenOf(const Element &element);
    void read(Element &element);
    void collect(const Element &outer, QList<Element> &found);

    PrivateBus session;
    QTemporaryDir folder;
    QProcess launcher;
    QDBusConnection bus;
    QStringList news;
    QString focus;
};
