// A language whose texts can be told from the English ones.
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>

namespace handset::test {

/// The language of the program for as long as this is there: what a handset says stands in brackets.
class OtherLanguage final : public QTranslator
{
public:
    OtherLanguage() { QCoreApplication::installTranslator(this); }
    ~OtherLanguage() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(OtherLanguage)

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "handset") == 0 ? QLatin1Char('[') + QString::fromUtf8(text) + QLatin1Char(']')
                                                : QString();
    }
};

} // namespace handset::test
