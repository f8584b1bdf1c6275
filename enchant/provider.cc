// The Enchant provider: Basque ("eu", "eu_ES", "eu_FR", ...) for every
// program that checks spelling through Enchant 2. C at the edge, the
// Speller inside; no exception crosses into the host program.
#include <enchant-provider.h>

#include <cstring>
#include <exception>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "speller.h"

namespace {

using tarvola_enchant::Speller;

constexpr const char* kTags[] = {"eu", "eu_ES", "eu_FR"};

bool is_basque(const char* tag) {
  return tag != nullptr && std::strncmp(tag, "eu", 2) == 0 && (tag[2] == '\0' || tag[2] == '_');
}

// The personal dictionary lives beside Enchant's own word lists (the user
// configuration folder, $ENCHANT_CONFIG_DIR when set).
std::string personal_dictionary() {
  char* folder = enchant_get_user_config_dir();
  std::string path = std::string(folder != nullptr ? folder : ".") + "/tarvola-personal.txt";
  g_free(folder);
  return path;
}

Speller& speller_of(EnchantDict* me) { return *static_cast<std::shared_ptr<Speller>*>(me->user_data)->get(); }

std::string_view word_of(const char* word, size_t len) { return std::string_view(word, len); }

// A list Enchant frees with g_strfreev; null for none.
char** glib_list(const std::vector<std::string>& items, size_t* count) {
  *count = items.size();
  if (items.empty()) return nullptr;
  char** list = g_new0(char*, items.size() + 1);
  for (size_t i = 0; i < items.size(); ++i) list[i] = g_strdup(items[i].c_str());
  return list;
}

int check(EnchantDict* me, const char* const word, size_t len) {
  try {
    return speller_of(me).check(word_of(word, len)) ? 0 : 1;
  } catch (const std::exception& e) {
    enchant_dict_set_error(me, e.what());
    return -1;
  }
}

char** suggest(EnchantDict* me, const char* const word, size_t len, size_t* out_n) {
  *out_n = 0;
  try {
    return glib_list(speller_of(me).suggest(word_of(word, len)), out_n);
  } catch (const std::exception& e) {
    enchant_dict_set_error(me, e.what());
    return nullptr;
  }
}

void add(EnchantDict* me, const char* const word, size_t len, bool personal) {
  try {
    std::string error;
    if (!speller_of(me).add(word_of(word, len), personal, error)) enchant_dict_set_error(me, error.c_str());
  } catch (const std::exception& e) {
    enchant_dict_set_error(me, e.what());
  }
}

void add_to_personal(EnchantDict* me, const char* const word, size_t len) { add(me, word, len, true); }
void add_to_session(EnchantDict* me, const char* const word, size_t len) { add(me, word, len, false); }

// Basque words are letters (with their accents) and digits ("2023an");
// an apostrophe or a hyphen joins two parts ("Rijkaard-ek") but never
// starts or ends a word. n: 0 the first character, 1 inside, 2 the last.
int is_word_character(EnchantDict*, uint32_t uc, size_t n) {
  if (g_unichar_isalnum(uc) || g_unichar_ismark(uc)) return 1;
  const bool joiner = uc == '\'' || uc == 0x2019 || uc == '-';
  return joiner && n == 1 ? 1 : 0;
}

const char* extra_word_characters(EnchantDict*) { return "'\xE2\x80\x99-"; }

EnchantDict* request_dict(EnchantProvider* me, const char* const tag) {
  if (!is_basque(tag)) return nullptr;
  try {
    std::string error;
    std::shared_ptr<Speller> speller = Speller::shared(personal_dictionary(), error);
    if (!speller) {
      enchant_provider_set_error(me, error.c_str());
      return nullptr;
    }
    EnchantDict* dict = g_new0(EnchantDict, 1);
    dict->user_data = new std::shared_ptr<Speller>(std::move(speller));
    dict->check = check;
    dict->suggest = suggest;
    dict->add_to_personal = add_to_personal;
    dict->add_to_session = add_to_session;
    dict->get_extra_word_characters = extra_word_characters;
    dict->is_word_character = is_word_character;
    return dict;
  } catch (const std::exception& e) {
    enchant_provider_set_error(me, e.what());
    return nullptr;
  }
}

void dispose_dict(EnchantProvider*, EnchantDict* dict) {
  delete static_cast<std::shared_ptr<Speller>*>(dict->user_data);
  g_free(dict);
}

int dictionary_exists(EnchantProvider*, const char* const tag) { return is_basque(tag) ? 1 : 0; }

char** list_dicts(EnchantProvider*, size_t* out_n) {
  return glib_list({std::begin(kTags), std::end(kTags)}, out_n);
}

const char* identify(EnchantProvider*) { return "tarvola"; }
const char* describe(EnchantProvider*) { return "tarvola Basque morphological checker"; }
void dispose(EnchantProvider* me) { g_free(me); }

}  // namespace

extern "C" __attribute__((visibility("default"))) EnchantProvider* init_enchant_provider(void) {
  EnchantProvider* provider = g_new0(EnchantProvider, 1);
  provider->dispose = dispose;
  provider->request_dict = request_dict;
  provider->dispose_dict = dispose_dict;
  provider->dictionary_exists = dictionary_exists;
  provider->identify = identify;
  provider->describe = describe;
  provider->list_dicts = list_dicts;
  return provider;
}
