// A file of translations (.ts), read as a translator's program reads it.
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

struct TranslatedText {
    QString context;
    QString source;
    QString comment;
    QString translation;

    /// Of the phone's texts, the source is a key and the comment the English.
    QString english() const { return comment.isEmpty() ? source : comment; }
    QString id() const { return context + u'|' + source + u'|' + comment; }
};

/// Fails the running test where the file cannot be read.
QList<TranslatedText> readTexts(const QString &file);

/// "de", "zh_CN" ...: the files of the source tree but the template.
QStringList translatedLanguages();

/// The file of a language, or "template".
QString sourceOf(const QString &language);
