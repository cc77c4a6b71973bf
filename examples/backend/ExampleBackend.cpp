// A telephone from outside: one that has made a single call of 1 h 2 min 3 s and knows nothing else. What it does not answer
// is answered NotAvailable, and the screens show what they show then.
#include "handset/Backend.h"
#include "handset/DecoratedHandset.h"

namespace {

class ExampleHandset : public handset::DecoratedHandset<ExampleHandset>
{
public:
    // One hook for each set of arguments that is answered: these are all queries of a time.
    std::optional<int> before(int, handset::CallTime &time)
    {
        time.hours = 1;
        time.minutes = 2;
        time.seconds = 3;
        return handset::Success;
    }
    using DecoratedHandset::before; // everything else
};

handset::Opened openExample(const handset::Settings &)
{
    return {std::make_shared<ExampleHandset>(), {}, {}};
}

} // namespace

KAV_HANDSET_BACKEND(openExample)
