// A library that has no handset.
int nothingToSpeakOf()
{
    return 0;
}
