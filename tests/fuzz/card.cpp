// The file of a SIM card, and what is in EF_PUCT.
#include "fuzz/Fuzz.h"

#include "charging/SimImage.h"
#include "handset/Status.h"

#include <QtCore/QCryptographicHash>

#include <algorithm>

using namespace handset;
using namespace handset::charging;

namespace {

void tryCard(QByteArrayView bytes)
{
    SimCard card;
    if (loadCard(bytes, card) != Success)
        return;
    REQUIRE(saveCard(card) == bytes);
    card.increaseAcm(card.acmMax());
    card.resetAcm();
    SimCard again;
    REQUIRE(loadCard(saveCard(card), again) == Success);
    REQUIRE(again == card);
}

} // namespace

void tryBytes(QByteArrayView bytes)
{
    tryCard(bytes);
    // The same with the right check, which nobody finds by chance.
    constexpr qsizetype checked = cardImageSize - 20;
    if (bytes.size() >= checked) {
        const QByteArray whole = bytes.first(checked).toByteArray();
        tryCard(whole + QCryptographicHash::hash(whole, QCryptographicHash::Sha256).first(20));
    }
    PuctBytes puct{};
    std::copy_n(bytes.begin(), std::min<qsizetype>(bytes.size(), puct.size()), puct.begin());
    const Puct read = decodePuct(puct);
    REQUIRE(read.currency.size() <= 3);
    PuctBytes written{};
    if (encodePuct(read, written) == Success)
        REQUIRE(decodePuct(written).price.tenMillionths() == read.price.tenMillionths());
}
