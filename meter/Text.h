// What the program says to its user.
#pragma once

#include <QtCore/QCoreApplication>

namespace meter {

/// tr() in the catalogues' context of the program.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(kavmeter)
};

} // namespace meter
