// The spelling knowledge behind the suggestion search, kept as data.
//
// kLetterGroups: letter groups that Basque writers confuse, each entry read
// "a word written with `written` may have been meant with `meant`". Every
// occurrence is replaced on its own, one at a time; two confusions in one
// word are not repaired (one slip a word is by far the common case, and
// pairs would multiply the candidates). Matching ignores case; the
// replacement takes the case of the letters it replaces. Bytes above 0x7F
// are Latin-1.
//
// kInsertedLetters: the letters tried as missing letters, most frequent in
// Basque text first, so that when more than five corrections are valid the
// likelier ones come first. The five vowels, then the consonants of the
// standard alphabet; c, q, v, w, y are left out (they occur only in loans).
#ifndef TARVOLA_ENGINE_SUGGESTION_TABLES_H
#define TARVOLA_ENGINE_SUGGESTION_TABLES_H

namespace tarvola::engine {

// kStartBeforeVowel: only at the very start of a word that begins with a
// vowel (where Basque writes its initial h).
enum class Where { kAnywhere, kStartBeforeVowel };

struct LetterGroup {
  const char* written;
  const char* meant;
  Where where;
};

constexpr LetterGroup kLetterGroups[] = {
    // The standard keeps three affricates (tz, ts, tx) that most speakers
    // merge or tell apart differently: "hotz"/"hots", "itxaso"/"itsaso".
    {"tz", "ts", Where::kAnywhere},
    {"tz", "tx", Where::kAnywhere},
    {"ts", "tz", Where::kAnywhere},
    {"ts", "tx", Where::kAnywhere},
    {"tx", "tz", Where::kAnywhere},
    {"tx", "ts", Where::kAnywhere},
    // ... and three sibilants (z, s, x), merged in most of the south:
    // "gizon"/"gison", "zer"/"ser", palatalised "gixon" after i.
    {"z", "s", Where::kAnywhere},
    {"s", "z", Where::kAnywhere},
    {"x", "z", Where::kAnywhere},
    {"x", "s", Where::kAnywhere},
    {"z", "x", Where::kAnywhere},
    {"s", "x", Where::kAnywhere},
    // An affricate written as the bare sibilant and back, chiefly after n
    // and l and at the end of a word: "pensatu" for "pentsatu", "hoz" for
    // "hotz", "baltza"/"balza".
    {"s", "ts", Where::kAnywhere},
    {"z", "tz", Where::kAnywhere},
    {"x", "tx", Where::kAnywhere},
    {"ts", "s", Where::kAnywhere},
    {"tz", "z", Where::kAnywhere},
    {"tx", "x", Where::kAnywhere},
    // h is silent almost everywhere: dropped at the start ("emen" for
    // "hemen", "itz" for "hitz") or added where it has no place ("hurte"
    // for "urte"). A missing h inside the word is a one-letter insertion.
    {"", "h", Where::kStartBeforeVowel},
    {"h", "", Where::kAnywhere},
    // b and v are one sound; the standard writes v only in a few loans.
    {"v", "b", Where::kAnywhere},
    {"b", "v", Where::kAnywhere},
    // The palatal l: "ll" from Spanish spelling or dialectal speech for
    // the standard "il" ("ollo" for "oilo") or plain "l" ("mutilla" for
    // "mutila"), and the other way round.
    {"ll", "il", Where::kAnywhere},
    {"ll", "l", Where::kAnywhere},
    {"il", "ll", Where::kAnywhere},
    // The palatal n: the standard writes "in" where speech (and older
    // spelling) has "ñ" ("baña" for "baina"), and keyboards lose the ñ.
    {"\xF1", "in", Where::kAnywhere},  // ñ
    {"\xF1", "n", Where::kAnywhere},   // ñ
    {"in", "\xF1", Where::kAnywhere},  // ñ
    {"n", "\xF1", Where::kAnywhere},   // ñ
    // The trill is written rr between vowels, r elsewhere: "ere"/"erre",
    // "beri" for "berri".
    {"rr", "r", Where::kAnywhere},
    {"r", "rr", Where::kAnywhere},
    // Spanish and French spellings of k, tx and z: "c", "qu", "q" for k,
    // "ch" for tx, "c" before e/i for z, "cc" for kz ("acción").
    {"c", "k", Where::kAnywhere},
    {"qu", "k", Where::kAnywhere},
    {"q", "k", Where::kAnywhere},
    {"ch", "tx", Where::kAnywhere},
    {"c", "z", Where::kAnywhere},
    {"cc", "kz", Where::kAnywhere},
    // y is not a Basque letter: it stands for i ("mayatza") or for the
    // j of northern and western speech ("yan" for "jan").
    {"y", "i", Where::kAnywhere},
    {"y", "j", Where::kAnywhere},
    // Spanish "ge"/"gi" for the Basque j ("general" for "jeneral").
    {"ge", "je", Where::kAnywhere},
    {"gi", "ji", Where::kAnywhere},
    // Nasals before b and p are written n: "campo"/"kanpo",
    // "ambulantzia" for "anbulantzia".
    {"mp", "np", Where::kAnywhere},
    {"mb", "nb", Where::kAnywhere},
    // The standard has no accented vowels; Spanish habits add them.
    {"\xE1", "a", Where::kAnywhere},  // á
    {"\xE9", "e", Where::kAnywhere},  // é
    {"\xED", "i", Where::kAnywhere},  // í
    {"\xF3", "o", Where::kAnywhere},  // ó
    {"\xFA", "u", Where::kAnywhere},  // ú
    {"\xFC", "u", Where::kAnywhere},  // ü
    // Dialectal raising of e and o before the article: "etxia" for
    // "etxea", "bertsua" for "bertsoa", "mendixa"-type glides aside.
    {"ia", "ea", Where::kAnywhere},
    {"ua", "oa", Where::kAnywhere},
    // Zuberoan and French-influenced spellings: "tt" for the palatal tx
    // ("ttiki" for "txiki"), "ou" for u.
    {"tt", "tx", Where::kAnywhere},
    {"ou", "u", Where::kAnywhere},
};

constexpr const char kInsertedLetters[] = "aeiourntkzsldgbhxmpjf\xF1" "cvywq";

// Level 6 tries every letter, loans included, as the spelling search
// requires.
constexpr const char kReplacementLetters[] = "aeioubcdfghjklmnpqrstvwxyz";

}  // namespace tarvola::engine

#endif
