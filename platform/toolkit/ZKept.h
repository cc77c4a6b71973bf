// What painting has made and may need again soon. Inside the toolkit only.
#pragma once

#include <QtCore/QCache>
#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <algorithm>

class QCoreApplication;

/// Forgets everything when the application ends, which fonts and pixmaps must not outlive, and when its fonts change.
class ZKeeper
{
protected:
    ZKeeper();
    ~ZKeeper();
    Q_DISABLE_COPY_MOVE(ZKeeper)

    /// To be called before anything is kept.
    void followApplication();
    virtual void forget() = 0;

private:
    static void forgetAll();

    QPointer<QCoreApplication> application;
    QObject context; // of the connection to it
};

/// The values that were used last. GUI thread only.
template <typename Key, typename Value>
class ZKept final : private ZKeeper
{
public:
    /// Values are dropped, those used longest ago first, when they cost more than `mostCost` together.
    explicit ZKept(qsizetype mostCost)
        : values(mostCost)
    {}

    /// Null when there is none. Stays until the next keep().
    Value *find(const Key &key) { return values.object(key); }
    /// Takes `value`, which stays until the next keep().
    Value &keep(const Key &key, Value *value, qsizetype cost)
    {
        followApplication();
        values.insert(key, value, std::min(cost, values.maxCost()));
        return *value;
    }

private:
    void forget() override { values.clear(); }

    QCache<Key, Value> values;
};
