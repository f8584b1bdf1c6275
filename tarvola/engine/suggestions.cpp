// The spelling suggestions for an unknown word.
//
// Candidates come in six levels (suggestion_candidates.h), each tested with
// isValid(candidate, false). The cheap, likely corrections of levels 1 to 3
// are all tested and all kept; only when none of them is a word does the
// search go on to the broad levels, one letter more, less or mistyped (5),
// a missing blank (4) and, as a last resort, one letter replaced by any
// letter (6), keeping at most five suggestions from those.
#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "tarvola/engine/Tarvola.h"
#include "tarvola/engine/suggestion_candidates.h"

namespace tarvola {

namespace {

constexpr std::size_t kMaxBroadSuggestions = 5;

// The longest word the tokeniser makes. Longer input is not a misspelt
// word, and its candidates would grow with the square of its length.
constexpr std::size_t kMaxWordLength = 98;

// Remembers each verdict, so a spelling that turns up in two levels (a
// replacement that undoes a confusion of level 3, say) is tested once.
class Verdicts {
 public:
  explicit Verdicts(Tarvola& engine) : engine_(engine) {}

  bool valid(const std::string& candidate) {
    auto it = known_.find(candidate);
    if (it != known_.end()) return it->second;
    const bool answer = engine_.isValid(candidate, false);
    known_.emplace(candidate, answer);
    return answer;
  }

 private:
  Tarvola& engine_;
  std::unordered_map<std::string, bool> known_;
};

}  // namespace

std::vector<std::string> Tarvola::lortu_ezzg_proposamenak(std::string hitza) {
  std::vector<std::string> found;
  if (hitza.size() > kMaxWordLength) return found;
  Verdicts verdicts(*this);

  auto keep_all = [&](const std::vector<std::string>& level) {
    for (const std::string& candidate : level)
      if (verdicts.valid(candidate)) found.push_back(candidate);
  };
  // Once five are held nothing more could be kept, and testing has no
  // other effect, so the walk stops there.
  auto keep_few = [&](const std::vector<std::string>& level) {
    for (const std::string& candidate : level) {
      if (found.size() >= kMaxBroadSuggestions) return;
      if (verdicts.valid(candidate)) found.push_back(candidate);
    }
  };

  keep_all(engine::capitalised_candidates(hitza));
  keep_all(engine::swapped_candidates(hitza));
  keep_all(engine::letter_group_candidates(hitza));
  if (!found.empty()) return found;

  keep_few(engine::one_letter_candidates(hitza));
  if (found.size() < kMaxBroadSuggestions) {
    // A blank is offered only between two words of their own: testing the
    // halves first spares the costly paragraph analysis of the whole.
    std::vector<std::string> split;
    for (const engine::BlankSplit& halves : engine::blank_candidates(hitza)) {
      if (verdicts.valid(halves.left) && verdicts.valid(halves.right))
        split.push_back(halves.left + ' ' + halves.right);
    }
    keep_few(split);
  }
  if (found.empty()) keep_few(engine::replaced_candidates(hitza));
  return found;
}

}  // namespace tarvola
