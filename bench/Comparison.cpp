#include "bench/Comparison.h"

namespace bench {

QProcessEnvironment environmentOf(const Program &program)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto it = program.environment.begin(); it != program.environment.end(); ++it)
        environment.insert(it.key(), it.value());
    return environment;
}

} // namespace bench
