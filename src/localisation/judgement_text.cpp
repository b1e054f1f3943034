#include "localisation/judgement_text.h"

#include "text/numbers.h"

namespace Hesperin {

namespace {

using Corrected = Correction::What;

/// How a warning names the field of a value. `fixed` is the whole warning, the same in every
/// language.
struct Naming {
    const char* control; ///< whose caption names it, behind ...
    bool ofDamage;       ///< ... "Min damage" out of the captions "min" and "Damage"
    const char* fixed;
};

// clang-format off
constexpr EnumArray<Corrected, Naming> Namings{{{
    /* Mana        */ {"FrameMana",    false, nullptr},
    /* Shots       */ {"FrameShots",   false, nullptr},
    /* Attack      */ {"FrameAttack",  false, nullptr},
    /* Defence     */ {"FrameDefence", false, nullptr},
    /* Health      */ {"FrameHealth",  false, nullptr},
    /* MinDam      */ {"lblMin",       true,  nullptr},
    /* MaxDam      */ {"lblMax",       true,  nullptr},
    /* DamageOrder */ {"lblMax",       true,  nullptr},
    /* Speed       */ {nullptr,        false, "Value for 'Speed' out of the range!"},
    /* Initiative  */ {nullptr,        false, "Value for 'Initiative' out of the range!"},
    /* Tier        */ {nullptr,        false, "Value for 'Tier' out of the range!"},
}}};
// clang-format on

QString NameOf(const CaptionLookup& caption, Corrected what) {
    const Naming& naming = Namings[what];
    const QString own = caption(QLatin1String(naming.control));
    return naming.ofDamage
               ? ProperCase(own) + u' ' + caption(QLatin1String("FrameDamage")).toLower()
               : own;
}

} // namespace

QString CorrectionText(const Messages& messages, const CaptionLookup& caption,
                       const Correction& correction) {
    if (const char* fixed = Namings[correction.what].fixed)
        return QString::fromLatin1(fixed);
    const QString start = messages.MsgValueFor + NameOf(caption, correction.what);
    return correction.what == Corrected::DamageOrder
               ? start + messages.MsgCannotBeLess + NameOf(caption, Corrected::MinDam) +
                     QLatin1String("'!")
               : start + messages.MsgOutOfRange;
}

const QString& TierAdvicePrefix(const Messages& messages, std::int16_t current,
                                std::int16_t advised) {
    return current < advised ? messages.MsgIncreaseTier : messages.MsgLowerTier;
}

QString TierAdviceText(const Messages& messages, std::int16_t current, std::int16_t advised) {
    return TierAdvicePrefix(messages, current, advised) + QString::number(current) +
           messages.MsgTierTo + QString::number(advised);
}

} // namespace Hesperin
