#include "support/OtherPinEntry.h"

#include <dlfcn.h>

#define KAV_VERIFY_PIN                                                                                            \
    "_ZN19SETUP_SECURITY_Util9verifyPinER24SETUP_SECURITY_PINTYPE_ERK23SETUP_SECURITY_SKTYPE_E"                   \
    "R30SETUP_SECURITY_PINVERIFY_ERR_EP7QWidget"

namespace {

OtherPinEntry *other = nullptr;

} // namespace

OtherPinEntry::OtherPinEntry(int givenResult, SETUP_SECURITY_PINVERIFY_ERR_E givenError)
    : result(givenResult)
    , error(givenError)
{
    other = this;
}

OtherPinEntry::~OtherPinEntry()
{
    other = nullptr;
}

int answerByOther(SETUP_SECURITY_PINTYPE_E &pinType, SETUP_SECURITY_SKTYPE_E const &softkeys,
                  SETUP_SECURITY_PINVERIFY_ERR_E &error, QWidget *parent)
{
    if (other->whenCalled)
        other->whenCalled({pinType, softkeys, error, parent});
    error = other->error;
    return other->result;
}

extern "C" int verifyPinHere(SETUP_SECURITY_PINTYPE_E &pinType, SETUP_SECURITY_SKTYPE_E const &softkeys,
                             SETUP_SECURITY_PINVERIFY_ERR_E &error, QWidget *parent) asm(KAV_VERIFY_PIN);

int verifyPinHere(SETUP_SECURITY_PINTYPE_E &pinType, SETUP_SECURITY_SKTYPE_E const &softkeys,
                  SETUP_SECURITY_PINVERIFY_ERR_E &error, QWidget *parent)
{
    if (other)
        return answerByOther(pinType, softkeys, error, parent);
    using VerifyPin = int(SETUP_SECURITY_PINTYPE_E &, SETUP_SECURITY_SKTYPE_E const &,
                          SETUP_SECURITY_PINVERIFY_ERR_E &, QWidget *);
    void *phonesOwn = dlsym(RTLD_NEXT, KAV_VERIFY_PIN);
    if (!phonesOwn)
        qFatal("no library has SETUP_SECURITY_Util::verifyPin() any longer");
    return reinterpret_cast<VerifyPin *>(phonesOwn)(pinType, softkeys, error, parent);
}
