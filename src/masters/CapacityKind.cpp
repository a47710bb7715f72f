#include "masters/CapacityKind.h"

#include "platform/runtime/Conversion.h"

namespace akarix {

const std::array<CapacityKind, 2> kCapacityKinds{{{1, 41, 10, 1, 400, u"", u"法人向け"},
                                                  // The grid goes on below the last capacity that is kept.
                                                  {2, 110, 1, 10, 600, u".", u"個人向け"}}};

bool CapacityKind::accepts(Currency capacity) const {
    return capacity >= Currency(0) && capacity <= this->capacity(indices - 1);
}

const CapacityKind* CapacityKindOf(int kubun) {
    for (const CapacityKind& kind : kCapacityKinds)
        if (kind.kubun == kubun) return &kind;
    return nullptr;
}

CapacityPlace PlaceOf(Currency index) {
    return {CLng(Int(index / Currency(10))), CLng(index) % 10};
}

}  // namespace akarix
