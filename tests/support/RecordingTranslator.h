// A catalogue that remembers what it was asked for.
#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QTranslator>

/// Installed in the application while it lives. Returns what add() put in, and null for the rest, as a catalogue
/// without an entry does.
class RecordingTranslator : public QTranslator
{
public:
    struct Request {
        QString context;
        QString key;
        QString comment;

        friend bool operator==(const Request &, const Request &) = default;
    };

    RecordingTranslator();
    ~RecordingTranslator() override;

    /// `text` may be empty, which is a translation too, but not null.
    void add(const QString &key, const QString &text) { texts.insert(key, text); }
    /// Every request for a text of the phone so far, in order, and starts anew. Qt's own texts are left out.
    QList<Request> take();
    /// Records the keys in the journal too, as "translate KEY".
    void setJournalled(bool journal) { journalled = journal; }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *key, const char *comment, int n) const override;

private:
    QHash<QString, QString> texts;
    mutable QList<Request> requests;
    bool journalled = false;
};

/// For messages of failed comparisons: "context, key, comment".
QStringList lines(const QList<RecordingTranslator::Request> &requests);
