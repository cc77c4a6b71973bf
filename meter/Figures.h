// The figures and settings of a telephone, and what sets them to zero.
#pragma once

#include "meter/Table.h"

#include <optional>
#include <vector>

namespace handset {
class Handset;
}

namespace meter {

/// What one figure has come to. Without a status there is a value; with NotAvailable there is none, and with any other
/// the telephone has failed.
struct Figure {
    QString name; ///< as in "dialed-time"
    int status = 0;
    Cell cell;
    QString unit; ///< "s", "bytes", "units", a currency code, or empty
};

/// The figures of `handset` with these names, all without any; a name that is none is left out.
std::vector<Figure> figuresOf(handset::Handset &handset, const QStringList &names = {});
/// The advice of charge's settings, likewise.
std::vector<Figure> settingsOf(handset::Handset &handset);
QStringList figureNames();

Table tableOf(const std::vector<Figure> &figures);

/// Sets to zero what `name` stands for, one of resetNames(); a status of handset/Status.h.
int reset(handset::Handset &handset, const QString &name);
QStringList resetNames();

} // namespace meter
