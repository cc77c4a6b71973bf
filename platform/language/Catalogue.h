// A catalogue of texts (.qm), looked at before Qt reads it.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QTranslator>

namespace language {

/// What is wrong with the bytes of a catalogue, as the end of a sentence; empty when every offset and every length in
/// it leads to where it must. Qt follows them without looking, and so out of a damaged file. A catalogue that names
/// others which are to be loaded with it counts as damaged: those would not be looked at. So does one whose texts lie over
/// each other, which Qt would take minutes to look through, and one without texts. Takes time in proportion to the size.
QString findDamage(const QByteArray &bytes);

/// The texts of one file. They are in use until it goes.
class Catalogue
{
public:
    /// Reads the whole file, which may change afterwards, and installs its texts. Empty, or what is wrong as a
    /// sentence.
    QString install(const QString &file);
    /// The same with the file of a language; English needs none.
    QString installLanguage(const QString &language);

private:
    QByteArray bytes; // which the translator does not copy
    QTranslator translator;
};

} // namespace language
