// Part of a library that calls a function that nobody has.
extern "C" int functionThatNobodyHas();

extern "C" int callNowhere()
{
    return functionThatNobodyHas();
}
