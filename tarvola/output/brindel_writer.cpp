#include "tarvola/output/brindel_writer.h"

#include <algorithm>
#include <cstddef>

#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"

namespace tarvola::output {

namespace {

constexpr std::size_t kMaxPrefixSuggestions = 5;

bool starts_with_capital(const std::string& s) {
  return !s.empty() && latin1::is_ascii_upper(s[0]);
}

bool is_unknown(const Tokena& token) {
  return token.analisiak.size() == 1 && token.analisiak[0].etiketa == " EZZG";
}

// Suggestions for an unknown token: the words its form begins (also in
// lower case when the token is capitalised), else the suggestion search
// when asked for.
std::string unknown_verdict(const Tokena& token, const BrindelServices& services) {
  std::vector<Analisia> found;
  if (services.prefix_search) found = services.prefix_search(token.forma + " ");
  if (token.maiuskula && services.prefix_search) {
    for (Analisia& a : services.prefix_search(latin1::lowered(token.forma) + " ")) {
      if (!a.forma.empty() && latin1::is_ascii_lower(a.forma[0]))
        a.forma[0] = latin1::to_upper(a.forma[0]);
      const bool seen = std::any_of(found.begin(), found.end(),
                                    [&a](const Analisia& b) { return b.forma == a.forma; });
      if (!seen) found.push_back(std::move(a));
    }
  }

  if (!found.empty()) {
    std::string v = "\n\t<prop k=\"ezz\" h=\"bai\">";
    std::stable_sort(found.begin(), found.end(), Analisia::CompareLemaLuzera);
    std::size_t added = 0;
    for (const Analisia& a : found) {
      if (added == kMaxPrefixSuggestions) break;
      // A form already inside the verdict text, even as part of the markup
      // or of an earlier suggestion, is not offered again.
      if (tags::contains(v, a.forma) || starts_with_capital(a.lema)) continue;
      v += "\n\t\t<sugg>";
      v += a.forma;
      v += "</sugg>";
      ++added;
    }
    v += "\n\t</prop>";
    return v;
  }

  if (!services.proposamenak || !services.suggestions) return "\n\t<prop k=\"ezz\"/>";

  std::string v = "\n\t<prop k=\"ezz\">";
  for (const std::string& p : services.suggestions(token.forma)) {
    const std::string element = "<sugg>" + p + "</sugg>";
    if (tags::contains(v, element)) continue;
    v += "\n\t\t";
    v += element;
  }
  v += "\n\t</prop>";
  return v;
}

void add_replacement(std::string& v, const char* name, const std::string& form) {
  v += "\n\t\t<";
  v += name;
  v += '>';
  v += form;
  v += "</";
  v += name;
  v += '>';
}

// "ok" as soon as a standard reading turns up; until then the replacements
// of the non-standard readings, which that "ok" then throws away.
std::string known_verdict(const Tokena& token, const BrindelServices& services) {
  std::string v = "\n\t<prop>";
  for (const Analisia& a : token.analisiak) {
    if (tags::contains(a.analisia, "<Rare>")) continue;
    if (a.h_balioa.empty() && a.e_balioa.empty()) return "\n\t<prop k=\"ok\"/>";

    const bool better = !a.h_balioa.empty();
    const char* name = better ? "hobe" : "erabili";
    const std::string& replacement = better ? a.h_balioa : a.e_balioa;

    // A reading whose network is not loaded cannot be re-generated; it
    // contributes no replacement at all.
    const Sarea* network = nullptr;
    if (services.networks) {
      auto it = services.networks->find(a.sarea);
      if (it != services.networks->end()) network = it->second;
    }
    if (network == nullptr) continue;

    const std::vector<Analisia> forms = network->ordeztuForma(replacement, a);
    for (const Analisia& q : forms)
      if (!tags::contains(v, ">" + q.forma + "<")) add_replacement(v, name, q.forma);
    if (forms.empty() && !tags::contains(v, ">" + replacement + "<") && services.unknown_form)
      add_replacement(v, name, services.unknown_form(replacement, a.etiketa));
  }
  v += "\n\t</prop>";
  return v;
}

}  // namespace

void write_brindel(std::ostream& out, const std::vector<Esaldia>& esaldiak,
                   const BrindelServices& services) {
  out << "<p>\n";
  std::size_t sentence = 0;
  for (const Esaldia& esaldia : esaldiak) {
    out << "<es ezk=\"" << ++sentence << "\" pzk=\"0\">\n";
    std::size_t position = 0;
    for (const Tokena& token : esaldia.tokenak) {
      out << "<tok h=\"" << ++position << "\" z=\"" << (token.hutsunea ? "32" : "0")
          << "\">\n\t<frm>" << token.forma << "</frm>"
          << (is_unknown(token) ? unknown_verdict(token, services)
                                : known_verdict(token, services))
          << "\n</tok>\n";
    }
    out << "</es>\n";
  }
  out << "</p>\n";
}

}  // namespace tarvola::output
