#include "support/TestGroup.h"

#include "support/Surroundings.h"

#include <QtCore/QtGlobal>

#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int usageError = 2;

std::map<std::string, TestGroup::Run, std::less<>> &groups()
{
    static std::map<std::string, TestGroup::Run, std::less<>> all;
    return all;
}

std::string groupOf(std::string_view file)
{
    if (const auto slash = file.rfind('/'); slash != file.npos)
        file.remove_prefix(slash + 1);
    if (const auto dot = file.rfind('.'); dot != file.npos)
        file.remove_suffix(file.size() - dot);
    if (file.starts_with("tst_"))
        file.remove_prefix(4);
    if (file.ends_with("Test"))
        file.remove_suffix(4);
    return std::string(file);
}

int listGroups(const char *program)
{
    std::fprintf(stderr, "usage: %s GROUP [OPTION]... [FUNCTION]...\nGroups:\n", program);
    for (const auto &[name, run] : groups())
        std::fprintf(stderr, "    %s\n", name.c_str());
    return usageError;
}

} // namespace

TestGroup::Registration::Registration(const char *file, Run run)
{
    if (!groups().emplace(groupOf(file), run).second)
        qFatal("%s has a group already, and a file is one group", file);
}

int main(int argc, char *argv[])
{
    const auto group = argc < 2 ? groups().end() : groups().find(std::string_view(argv[1]));
    if (group == groups().end())
        return listGroups(argv[0]);
    Surroundings::prepare();
    // Qt Test sees a program that has this group alone.
    std::vector<char *> arguments(argv + 1, argv + argc);
    arguments.front() = argv[0];
    const int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    return group->second(count, arguments.data());
}
