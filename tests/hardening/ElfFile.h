// What a built program or shared object says about itself.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <elf.h>
#include <link.h>

/// An ELF file of this machine's own class. A file that is none ends the test program.
class ElfFile
{
public:
    struct Function {
        QByteArray name;  ///< mangled
        QByteArray start; ///< its first eight bytes
    };

    explicit ElfFile(const QString &path);

    /// ET_DYN for shared objects and programs that can be loaded anywhere.
    int type() const { return header.e_type; }
    bool hasSegment(unsigned kind) const;
    /// The flags of a segment (PF_R, ...), 0 if there is none.
    unsigned segmentFlags(unsigned kind) const;
    bool hasDynamicEntry(long tag) const;
    /// The value of an entry of the dynamic section, 0 if there is none.
    quint64 dynamicValue(long tag) const;
    /// The names that the file wants from others, without their versions.
    QList<QByteArray> wantedNames() const;
    /// The functions that others can call, or in a program that its own other files can, without those of the C
    /// library's own start and end.
    QList<Function> ownFunctions() const;

private:
    template <typename T>
    T at(quint64 offset) const;
    template <typename Entry>
    QList<Entry> table(const ElfW(Shdr) & section) const;
    QByteArray text(quint64 offset) const;
    QList<ElfW(Sym)> symbols(unsigned kind, quint64 *names) const;
    quint64 offsetOf(quint64 address) const;

    QByteArray bytes;
    ElfW(Ehdr) header{};
    QList<ElfW(Phdr)> segments;
    QList<ElfW(Shdr)> sections;
    QList<ElfW(Dyn)> dynamic;
};
