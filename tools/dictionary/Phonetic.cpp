#include "Phonetic.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringView vowels = u"aæɑɔeəɚɛɝiɪoʊuʌ";
const QStringView consonants = u"bdðfɡhjklmnŋprsʃtθvwzʒ";
constexpr char16_t stress = u'ˈ';
constexpr char16_t halfStress = u'ˌ';

/// Runs of vowels with a consonant or a stress between: never more than there are syllables.
int VowelGroups(const QString &phonetic)
{
    int groups = 0;
    bool inside = false;
    for (const QChar sign : phonetic) {
        const bool vowel = vowels.contains(sign);
        groups += vowel && !inside ? 1 : 0;
        inside = vowel;
    }
    return groups;
}

} // namespace

QString PhoneticFault(const QString &phonetic)
{
    const auto isSign = [](QChar sign) {
        return vowels.contains(sign) || consonants.contains(sign) || sign == stress || sign == halfStress;
    };
    const auto *foreign = std::find_if_not(phonetic.cbegin(), phonetic.cend(), isSign);
    if (foreign != phonetic.cend())
        return u"its phonetic has the sign \"%1\" (U+%2)"_s.arg(*foreign).arg(
            static_cast<int>(foreign->unicode()), 4, 16, QChar(u'0'));
    const int groups = VowelGroups(phonetic);
    if (groups == 0)
        return u"its phonetic has no vowel"_s;
    if (phonetic.count(stress) > 1)
        return u"its phonetic is stressed twice"_s;
    if (groups > 1 && !phonetic.contains(stress))
        return u"its phonetic has no stress"_s;
    for (const char16_t mark : {stress, halfStress}) {
        for (qsizetype at = phonetic.indexOf(mark); at >= 0; at = phonetic.indexOf(mark, at + 1)) {
            const QString rest = phonetic.sliced(at + 1);
            if (rest.isEmpty() || rest.front() == stress || rest.front() == halfStress ||
                VowelGroups(rest) == 0)
                return u"its phonetic has a stress without a syllable"_s;
        }
    }
    return {};
}
