// A library that is none of ours.
extern "C" int somethingElse()
{
    return 0;
}
