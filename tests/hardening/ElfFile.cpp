#include "hardening/ElfFile.h"

#include <QtCore/QFile>

#include <algorithm>
#include <cstring>

template <typename T>
T ElfFile::at(quint64 offset) const
{
    T value{};
    if (offset + sizeof value > quint64(bytes.size()))
        qFatal("an ELF file ends within its tables");
    std::memcpy(&value, bytes.constData() + offset, sizeof value);
    return value;
}

template <typename Entry>
QList<Entry> ElfFile::table(const ElfW(Shdr) & section) const
{
    QList<Entry> entries;
    for (quint64 done = 0; done + sizeof(Entry) <= section.sh_size; done += sizeof(Entry))
        entries.append(at<Entry>(section.sh_offset + done));
    return entries;
}

ElfFile::ElfFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qUtf8Printable(path), qUtf8Printable(file.errorString()));
    bytes = file.readAll();
    header = at<ElfW(Ehdr)>(0);
    const int thisClass = sizeof(void *) == 8 ? ELFCLASS64 : ELFCLASS32;
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_ident[EI_CLASS] != thisClass)
        qFatal("%s is no ELF file of this machine", qUtf8Printable(path));
    for (unsigned i = 0; i < header.e_phnum; ++i)
        segments.append(at<ElfW(Phdr)>(header.e_phoff + i * sizeof(ElfW(Phdr))));
    for (unsigned i = 0; i < header.e_shnum; ++i)
        sections.append(at<ElfW(Shdr)>(header.e_shoff + i * sizeof(ElfW(Shdr))));
    for (const ElfW(Shdr) & section : std::as_const(sections)) {
        if (section.sh_type == SHT_DYNAMIC)
            dynamic = table<ElfW(Dyn)>(section);
    }
}

bool ElfFile::hasSegment(unsigned kind) const
{
    return std::any_of(segments.begin(), segments.end(),
                       [kind](const ElfW(Phdr) & segment) { return segment.p_type == kind; });
}

unsigned ElfFile::segmentFlags(unsigned kind) const
{
    const auto found = std::find_if(segments.begin(), segments.end(),
                                    [kind](const ElfW(Phdr) & segment) { return segment.p_type == kind; });
    return found == segments.end() ? 0 : found->p_flags;
}

bool ElfFile::hasDynamicEntry(long tag) const
{
    return std::any_of(dynamic.begin(), dynamic.end(),
                       [tag](const ElfW(Dyn) & entry) { return entry.d_tag == tag; });
}

quint64 ElfFile::dynamicValue(long tag) const
{
    const auto found = std::find_if(dynamic.begin(), dynamic.end(),
                                    [tag](const ElfW(Dyn) & entry) { return entry.d_tag == tag; });
    return found == dynamic.end() ? 0 : found->d_un.d_val;
}

QByteArray ElfFile::text(quint64 offset) const
{
    const qsizetype end = bytes.indexOf('\0', qsizetype(offset));
    if (end < 0)
        qFatal("an ELF file ends within a name");
    return bytes.mid(qsizetype(offset), end - qsizetype(offset));
}

// The symbols of the tables of a kind (SHT_SYMTAB, SHT_DYNSYM), and where their names are.
QList<ElfW(Sym)> ElfFile::symbols(unsigned kind, quint64 *names) const
{
    for (const ElfW(Shdr) & section : sections) {
        if (section.sh_type == kind) {
            *names = sections.at(qsizetype(section.sh_link)).sh_offset;
            return table<ElfW(Sym)>(section);
        }
    }
    return {};
}

quint64 ElfFile::offsetOf(quint64 address) const
{
    for (const ElfW(Phdr) & segment : segments) {
        if (segment.p_type == PT_LOAD && address >= segment.p_vaddr &&
            address < segment.p_vaddr + segment.p_filesz)
            return address - segment.p_vaddr + segment.p_offset;
    }
    qFatal("an ELF file has a function outside its segments");
}

QList<QByteArray> ElfFile::wantedNames() const
{
    QList<QByteArray> wanted;
    quint64 names = 0;
    const QList<ElfW(Sym)> all = symbols(SHT_DYNSYM, &names);
    for (const ElfW(Sym) & symbol : all) {
        if (symbol.st_shndx == SHN_UNDEF)
            wanted.append(text(names + symbol.st_name));
    }
    return wanted;
}

QList<ElfFile::Function> ElfFile::ownFunctions() const
{
    static const QList<QByteArray> systemNames{"_init", "_fini", "_start", "_dl_relocate_static_pie"};
    QList<Function> functions;
    quint64 names = 0;
    QList<ElfW(Sym)> all = symbols(SHT_SYMTAB, &names);
    if (all.isEmpty())
        all = symbols(SHT_DYNSYM, &names);
    for (const ElfW(Sym) & symbol : std::as_const(all)) {
        // The address and the kind stand in the same bits in both classes.
        const bool isShared = ELF64_ST_BIND(symbol.st_info) != STB_LOCAL;
        if (symbol.st_shndx == SHN_UNDEF || ELF64_ST_TYPE(symbol.st_info) != STT_FUNC || !isShared)
            continue;
        const QByteArray name = text(names + symbol.st_name);
        if (!systemNames.contains(name))
            functions.append({name, bytes.mid(qsizetype(offsetOf(symbol.st_value)), 8)});
    }
    return functions;
}
