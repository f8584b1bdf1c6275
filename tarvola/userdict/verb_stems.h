// The two forms a verb's paradigm needs beside its lemma: the verb stem
// (hartu -> har) and the verbal noun (hartu -> hartze). Both come from an
// ordered list of ending rules; the first rule whose ending the lemma has
// decides. Endings are tested on a lower-cased copy, but the result is cut
// from the lemma as given, so HARTU gives HAR and HARtze.
#ifndef TARVOLA_USERDICT_VERB_STEMS_H
#define TARVOLA_USERDICT_VERB_STEMS_H

#include <string>
#include <string_view>

namespace tarvola::userdict {

std::string verb_stem(std::string_view lemma);
std::string verbal_noun(std::string_view lemma);

}  // namespace tarvola::userdict

#endif
