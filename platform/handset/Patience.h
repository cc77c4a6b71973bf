// How long other processes are waited for.
#pragma once

namespace handset {

/// Milliseconds.
struct Patience {
    int opening = 5000; ///< by open() in all: for who has the state directory, or the files in it, for himself
    int operation =
        1000; ///< by each operation, for who writes: nobody looks at a screen that stands still for longer
};

} // namespace handset
