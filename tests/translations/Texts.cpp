#include "translations/Texts.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>
#include <QtTest/QTest>

QString sourceOf(const QString &language)
{
    return QStringLiteral(KAV_TRANSLATION_SOURCES "/%1.ts").arg(language);
}

QStringList translatedLanguages()
{
    QStringList languages;
    for (const QString &file : QDir(KAV_TRANSLATION_SOURCES).entryList({QStringLiteral("*.ts")}, QDir::Files))
        languages << file.chopped(3);
    languages.removeAll(QStringLiteral("template"));
    return languages;
}

QList<TranslatedText> readTexts(const QString &file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(file));
    QList<TranslatedText> texts;
    QString context;
    TranslatedText text;
    QXmlStreamReader xml(&source);
    while (!xml.atEnd()) {
        const bool begins = xml.readNext() == QXmlStreamReader::StartElement;
        if (begins && xml.name() == QLatin1StringView("name"))
            context = xml.readElementText();
        else if (begins && xml.name() == QLatin1StringView("message"))
            text = {context, {}, {}, {}};
        else if (begins && xml.name() == QLatin1StringView("source"))
            text.source = xml.readElementText();
        else if (begins && xml.name() == QLatin1StringView("comment"))
            text.comment = xml.readElementText();
        else if (begins && xml.name() == QLatin1StringView("translation"))
            text.translation = xml.readElementText();
        else if (xml.isEndElement() && xml.name() == QLatin1StringView("message"))
            texts << text;
    }
    if (xml.hasError())
        qFatal("%s:%lld: %s", qPrintable(file), xml.lineNumber(), qPrintable(xml.errorString()));
    return texts;
}
