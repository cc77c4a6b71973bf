// What a test needs around it, wherever it is started.
#pragma once

namespace Surroundings {

/// Sets what the test runner sets too where it is not set, so that a program started by hand runs in the same.
void prepare();

} // namespace Surroundings
