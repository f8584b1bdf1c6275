#include "tarvola/engine/suggestion_candidates.h"

#include <cstring>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "tarvola/base/latin1.h"
#include "tarvola/engine/suggestion_tables.h"

namespace tarvola::engine {

namespace {

// Collects one level's candidates in order, each once, never the word.
class Level {
 public:
  explicit Level(const std::string& word) : word_(word) {}

  void add(std::string candidate) {
    if (candidate == word_ || !seen_.insert(candidate).second) return;
    list_.push_back(std::move(candidate));
  }
  std::vector<std::string> take() { return std::move(list_); }

 private:
  const std::string& word_;
  std::unordered_set<std::string> seen_;
  std::vector<std::string> list_;
};

bool has_letter(const std::string& word) {
  for (char c : word)
    if (latin1::to_lower(c) != latin1::to_upper(c)) return true;
  return false;
}

// Letters written into the word: all capitals in an all-capital word, a
// capital first letter where the letter they replace was a capital.
class CaseOf {
 public:
  explicit CaseOf(const std::string& word)
      : word_(word), all_caps_(has_letter(word) && latin1::is_all_upper(word)) {}

  std::string fit(std::string text, std::size_t at) const {
    if (all_caps_) {
      latin1::upper_in_place(text);
    } else if (!text.empty() && is_capital(at)) {
      text[0] = latin1::to_upper(text[0]);
    }
    return text;
  }

  // The word with `length` bytes at `at` replaced by `text`. When a capital
  // first letter goes without a replacement, the capital moves on to the
  // letter that now begins the word ("Hona" -> "Ona").
  std::string replace(std::size_t at, std::size_t length, const std::string& text) const {
    std::string out = word_.substr(0, at) + fit(text, at) + word_.substr(at + length);
    if (text.empty() && at == 0 && is_capital(0) && !out.empty())
      out[0] = latin1::to_upper(out[0]);
    return out;
  }

 private:
  bool is_capital(std::size_t at) const {
    return at < word_.size() && latin1::to_lower(word_[at]) != word_[at];
  }

  const std::string& word_;
  bool all_caps_;
};

}  // namespace

std::vector<std::string> capitalised_candidates(const std::string& word) {
  Level level(word);
  std::string candidate = latin1::lowered(word);
  if (!candidate.empty()) candidate[0] = latin1::to_upper(candidate[0]);
  if (candidate.size() > 2) level.add(std::move(candidate));
  return level.take();
}

std::vector<std::string> swapped_candidates(const std::string& word) {
  Level level(word);
  for (std::size_t i = 0; i + 1 < word.size(); ++i) {
    std::string candidate = word;
    std::swap(candidate[i], candidate[i + 1]);
    level.add(std::move(candidate));
  }
  return level.take();
}

std::vector<std::string> letter_group_candidates(const std::string& word) {
  Level level(word);
  const CaseOf case_of(word);
  const std::string lower = latin1::lowered(word);
  for (const LetterGroup& group : kLetterGroups) {
    const std::size_t length = std::strlen(group.written);
    if (group.where == Where::kStartBeforeVowel) {
      if (length < lower.size() && lower.compare(0, length, group.written) == 0 &&
          std::string_view("aeiou").find(lower[length]) != std::string_view::npos)
        level.add(case_of.replace(0, length, group.meant));
      continue;
    }
    for (std::size_t at = lower.find(group.written); at != std::string::npos;
         at = lower.find(group.written, at + 1)) {
      level.add(case_of.replace(at, length, group.meant));
    }
  }
  return level.take();
}

std::vector<BlankSplit> blank_candidates(const std::string& word) {
  // Every cut gives a different spelling, so there is nothing to remove.
  std::vector<BlankSplit> splits;
  for (std::size_t at = 2; at + 2 <= word.size(); ++at)
    splits.push_back({word.substr(0, at), word.substr(at)});
  return splits;
}

std::vector<std::string> one_letter_candidates(const std::string& word) {
  Level level(word);
  const CaseOf case_of(word);
  // A letter left out, at any place; it takes capitals only in an
  // all-capital word. First: a word one letter shorter than the intended
  // one is very often some other, shorter word too (ian: ia, izan), while
  // a word one letter longer than the word typed is rarely a word unless
  // it is the intended one.
  for (std::size_t at = 0; at <= word.size(); ++at) {
    for (const char* letter = kInsertedLetters; *letter; ++letter) {
      level.add(word.substr(0, at) + case_of.fit(std::string(1, *letter), std::string::npos) +
                word.substr(at));
    }
  }
  // A letter typed once too often: deleting a doubled letter gives one
  // candidate, not two.
  for (std::size_t at = 0; at < word.size(); ++at) level.add(case_of.replace(at, 1, ""));
  // A letter mistyped for another. Last, since a word one letter longer or
  // shorter is the likelier slip where both are words; here rather than in
  // the last level alone, which is reached only when this one finds nothing,
  // so that a mistyped letter is still corrected when an insertion or a
  // deletion happens to make some other word.
  for (std::size_t at = 0; at < word.size(); ++at) {
    for (const char* letter = kInsertedLetters; *letter; ++letter) {
      std::string candidate = word;
      candidate[at] = case_of.fit(std::string(1, *letter), at)[0];
      level.add(std::move(candidate));
    }
  }
  return level.take();
}

std::vector<std::string> replaced_candidates(const std::string& word) {
  Level level(word);
  if (word.size() <= 2) return level.take();
  const CaseOf case_of(word);
  for (std::size_t at = 0; at < word.size(); ++at) {
    for (const char* letter = kReplacementLetters; *letter; ++letter) {
      std::string candidate = word;
      candidate[at] = case_of.fit(std::string(1, *letter), at)[0];
      level.add(std::move(candidate));
    }
  }
  return level.take();
}

}  // namespace tarvola::engine
