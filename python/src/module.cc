// The tarvola Python extension: a thin layer over the public library and the
// command-line tool's own engine set-up and text conversion, so that Python
// and the tool find the same data, refuse the same files and give the same
// readings for the same text.
//
// Threads: every library call runs with the GIL released. A handle (one
// Python Engine object) serialises its own calls with a mutex, since a
// library engine is used by one thread at a time; copies made with
// Engine.copy() share the loaded tables and have their own engine object
// and mutex, so they run side by side. Construction, destruction and the
// Multext rendering touch process-wide state (the working directory,
// descriptor 1, std::cerr) and hold one global lock.
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <mutex>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/dictionary_change.h"
#include "common/encoding.h"
#include "common/engine.h"
#include "common/io.h"
#include "common/json.h"
#include "common/paragraphs.h"
#include "tarvola/base/tags.h"
#include "tarvola/tarvola.h"

namespace py = pybind11;
namespace fs = std::filesystem;
using tarvola_cli::Encoding;
using tarvola_cli::EnginePiece;

namespace {

std::mutex& process_lock() {
  static std::mutex m;
  return m;
}

// A missing file is reported before the library would end the process on
// it.
[[noreturn]] void raise_not_found(const std::string& message) {
  PyErr_SetString(PyExc_FileNotFoundError, message.c_str());
  throw py::error_already_set();
}

// Text from Python: str is UTF-8 by construction, bytes are code page 1252.
struct Input {
  std::string_view raw;
  Encoding encoding;
};

Input input_of(const py::handle& text, const char* what) {
  if (PyUnicode_Check(text.ptr())) {
    Py_ssize_t size = 0;
    const char* data = PyUnicode_AsUTF8AndSize(text.ptr(), &size);
    if (data == nullptr) throw py::error_already_set();
    return {std::string_view(data, static_cast<std::size_t>(size)), Encoding::kUtf8};
  }
  if (PyBytes_Check(text.ptr())) {
    char* data = nullptr;
    Py_ssize_t size = 0;
    PyBytes_AsStringAndSize(text.ptr(), &data, &size);
    return {std::string_view(data, static_cast<std::size_t>(size)), Encoding::kCp1252};
  }
  throw py::type_error(std::string(what) + " must be str or bytes, not " +
                       std::string(py::str(py::type::handle_of(text).attr("__name__"))));
}

// The engine text of a word, as the tool converts it.
std::shared_ptr<EnginePiece> piece_of(const Input& in) {
  auto piece = std::make_shared<EnginePiece>();
  if (!tarvola_cli::to_engine(in.raw, in.encoding, nullptr, *piece))
    throw py::value_error("the text holds more than " + std::to_string(tarvola_cli::kPlaceholders) +
                          " distinct characters outside code page 1252");
  return piece;
}

// A lemma becomes part of the analyses generation builds, where a "<"
// opens a tag; one running past tags::kMaxTagLength bytes ends the process.
void check_lemma_tags(const std::string& lemma) {
  if (!tarvola::tags::tags_closed_in_time(lemma))
    throw py::value_error("the lemma holds a \"<\" not closed by \">\" within " +
                          std::to_string(tarvola::tags::kMaxTagLength) + " bytes");
}

std::string to_utf8(const EnginePiece& piece, const std::string& engine_text) {
  return piece.restore(engine_text, Encoding::kUtf8);
}

// Python's str from UTF-8 the tool produced; bytes that are not UTF-8
// (only possible from cp1252 input passed through) become U+FFFD, as in
// the tool's JSON.
py::str py_text(const std::string& utf8) {
  PyObject* s = PyUnicode_DecodeUTF8(utf8.data(), static_cast<Py_ssize_t>(utf8.size()), "replace");
  if (s == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::str>(s);
}

// One reading, converted to Python text only when a field is read: most
// callers look at two or three fields of a few readings.
struct Reading {
  tarvola::Analisia a;
  std::shared_ptr<const EnginePiece> piece;

  py::str text(const std::string& field) const { return py_text(to_utf8(*piece, field)); }

  py::dict as_dict() const {
    // The field names and order of the tool's JSON records.
    py::dict d;
    d["analisia"] = text(a.analisia);
    d["lema"] = text(a.lema);
    d["etiketa"] = text(a.etiketa);
    d["twol"] = text(a.twol);
    d["sarea"] = text(a.sarea);
    d["s_balioa"] = text(a.s_balioa);
    d["h_balioa"] = text(a.h_balioa);
    d["e_balioa"] = text(a.e_balioa);
    d["tasuna"] = text(a.tasuna);
    d["iritzia"] = text(a.iritzia);
    d["forma"] = text(a.forma);
    d["maiuskulaMota"] = a.maiuskulaMota;
    return d;
  }
};

std::vector<Reading> wrap(std::vector<tarvola::Analisia>&& list,
                          const std::shared_ptr<const EnginePiece>& piece) {
  std::vector<Reading> out;
  out.reserve(list.size());
  for (tarvola::Analisia& a : list) out.push_back({std::move(a), piece});
  return out;
}

// Collects what the tool's set-up code writes to std::cerr while it runs.
class CerrCapture {
 public:
  CerrCapture() : old_(std::cerr.rdbuf(buffer_.rdbuf())) {}
  ~CerrCapture() { std::cerr.rdbuf(old_); }
  std::string text() const { return buffer_.str(); }

 private:
  std::ostringstream buffer_;
  std::streambuf* old_;
};

void flush_python_stdout() {
  py::module_ sys = py::module_::import("sys");
  py::object out = sys.attr("stdout");
  if (!out.is_none()) out.attr("flush")();
}

void write_python_stderr(const std::string& text) {
  if (text.empty()) return;
  py::object err = py::module_::import("sys").attr("stderr");
  if (err.is_none()) return;
  err.attr("write")(py_text(text));
}

// The tool's messages are one line each, "tarvola: ..." or "FILE:LINE: ...";
// the exception carries them without the program name.
std::string message_of(std::string said) {
  while (!said.empty() && said.back() == '\n') said.pop_back();
  if (said.rfind("tarvola: ", 0) == 0) said.erase(0, 9);
  return said.empty() ? "the engine could not be built" : said;
}

// What is loaded once and shared by an engine's copies: the tool's engine
// (networks, tables, personal dictionary and its own lookup of it).
struct Loaded {
  std::unique_ptr<tarvola_cli::Engine> engine;
  std::string config, dictionary;

  ~Loaded() {
    std::lock_guard<std::mutex> lock(process_lock());
    engine.reset();  // its destructor catches the library's farewell line
  }
};

std::shared_ptr<Loaded> load(const std::string& config, const std::string& dictionary) {
  tarvola_cli::CommonOptions options;
  options.config = config;
  options.dict = dictionary;
  auto loaded = std::make_shared<Loaded>();
  loaded->config = config;
  loaded->dictionary = dictionary;
  std::string said;
  // Flushing runs Python code, which may let other threads in: it is done
  // before the process lock is taken, never under it.
  flush_python_stdout();
  {
    std::lock_guard<std::mutex> lock(process_lock());
    CerrCapture capture;
    loaded->engine = tarvola_cli::Engine::open(options);
    if (loaded->engine) {
      // The dictionary lookup is built on first use; building it now makes
      // every later use a read, which copies may do at once.
      loaded->engine->dictionary_readings("aa");
      // Kept absolute, so that a reload finds the same files from anywhere.
      loaded->config = fs::absolute(tarvola_cli::find_config(config)).string();
      if (!dictionary.empty()) loaded->dictionary = fs::absolute(dictionary).string();
    }
    said = capture.text();
  }
  if (!loaded->engine) {
    const std::string message = message_of(said);
    if (message.find("not found or not readable") != std::string::npos) raise_not_found(message);
    throw py::value_error(message);
  }
  write_python_stderr(said);  // e.g. the note that the demo data set is in use
  return loaded;
}

class Engine {
 public:
  Engine(const py::object& config, const py::object& dictionary, Engine* share)
      : Engine(share != nullptr ? share->shared()
                                : load(path_or_empty(config, "config"),
                                       path_or_empty(dictionary, "dictionary"))) {}

  explicit Engine(std::shared_ptr<Loaded> loaded) { attach(std::move(loaded)); }

  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  ~Engine() { detach(); }

  std::shared_ptr<Loaded> shared() {
    std::lock_guard<std::mutex> lock(mutex_);
    return loaded_;
  }

  std::vector<Reading> analyze(const py::handle& word, const py::object& network) {
    auto piece = piece_of(input_of(word, "word"));
    std::string net = network.is_none() ? std::string() : network.cast<std::string>();
    if (!net.empty()) require(net, "by network=");
    std::vector<tarvola::Analisia> list;
    {
      py::gil_scoped_release release;
      std::lock_guard<std::mutex> lock(mutex_);
      list = lookup(piece->text(), net);
    }
    return wrap(std::move(list), piece);
  }

  std::vector<std::vector<Reading>> analyze_many(const py::iterable& words, const py::object& network) {
    std::vector<std::shared_ptr<EnginePiece>> pieces;
    for (py::handle w : words) pieces.push_back(piece_of(input_of(w, "word")));
    std::string net = network.is_none() ? std::string() : network.cast<std::string>();
    if (!net.empty()) require(net, "by network=");
    std::vector<std::vector<tarvola::Analisia>> lists(pieces.size());
    {
      py::gil_scoped_release release;
      std::lock_guard<std::mutex> lock(mutex_);
      for (std::size_t i = 0; i < pieces.size(); ++i) lists[i] = lookup(pieces[i]->text(), net);
    }
    std::vector<std::vector<Reading>> out;
    out.reserve(pieces.size());
    for (std::size_t i = 0; i < pieces.size(); ++i) out.push_back(wrap(std::move(lists[i]), pieces[i]));
    return out;
  }

  std::vector<Reading> generate(const py::handle& lemma, const py::handle& tags) {
    require("eumorfo", "to generate");
    require("hp", "to generate for unknown lemmas");
    Input l = input_of(lemma, "lemma"), t = input_of(tags, "tags");
    if (l.encoding != t.encoding) throw py::type_error("lemma and tags must both be str or both bytes");
    if (l.raw.find_first_of("\t\n\r") != std::string_view::npos ||
        t.raw.find_first_of("\t\n\r") != std::string_view::npos)
      throw py::value_error("lemma and tags cannot hold a tab or a line break");
    // Converted together, as the tool reads a LEMMA<TAB>TAGS request.
    std::string both = std::string(l.raw) + "\t" + std::string(t.raw);
    auto piece = piece_of({both, l.encoding});
    const std::string& text = piece->text();
    const std::size_t cut = text.find('\t');
    check_lemma_tags(text.substr(0, cut));
    std::vector<tarvola::Analisia> forms;
    {
      py::gil_scoped_release release;
      std::lock_guard<std::mutex> lock(mutex_);
      forms = own_->sortuFormak(text.substr(0, cut), text.substr(cut + 1));
    }
    return wrap(std::move(forms), piece);
  }

  bool is_valid(const py::handle& word, bool prefixes) {
    require("hp", "for the personal dictionary");
    require("eumorfo", "to check words");
    auto piece = piece_of(input_of(word, "word"));
    py::gil_scoped_release release;
    std::lock_guard<std::mutex> lock(mutex_);
    return own_->isValid(piece->text(), prefixes);
  }

  std::vector<py::str> suggest(const py::handle& word) {
    require("hp", "for the personal dictionary");
    require("eumorfo", "to check candidates");
    auto piece = piece_of(input_of(word, "word"));
    std::vector<std::string> found;
    {
      py::gil_scoped_release release;
      std::lock_guard<std::mutex> lock(mutex_);
      found = own_->lortu_ezzg_proposamenak(piece->text());
    }
    std::vector<py::str> out;
    for (const std::string& s : found) out.push_back(py_text(to_utf8(*piece, s)));
    return out;
  }

  // The paragraph pieces the tool would hand the engine for this text.
  std::vector<std::shared_ptr<EnginePiece>> split(const py::handle& text, bool blank_line) {
    Input in = input_of(text, "text");
    std::vector<std::shared_ptr<EnginePiece>> pieces;
    if (in.raw.empty()) return pieces;
    std::FILE* file = fmemopen(const_cast<char*>(in.raw.data()), in.raw.size(), "rb");
    if (file == nullptr) throw std::runtime_error("cannot read the text");
    tarvola_cli::ParagraphSource source(
        file, "<text>", in.encoding,
        blank_line ? tarvola_cli::ParagraphMode::kBlankLine : tarvola_cli::ParagraphMode::kLine);
    auto piece = std::make_shared<EnginePiece>();
    while (source.next(*piece)) {
      pieces.push_back(piece);
      piece = std::make_shared<EnginePiece>();
    }
    std::fclose(file);
    return pieces;
  }

  tarvola::Paragrafoa paragraph(const EnginePiece& piece, int number) {
    require("eumorfo", "to split paragraphs into sentences");
    py::gil_scoped_release release;
    std::lock_guard<std::mutex> lock(mutex_);
    tarvola::Paragrafoa p = own_->analizatu_paragrafoa(number, piece.text());
    p.id = number;  // the engine numbers every paragraph 1; the caller counts them
    return p;
  }

  py::list sentences(const std::shared_ptr<EnginePiece>& piece, int number) {
    tarvola::Paragrafoa p = paragraph(*piece, number);
    py::list out;
    for (tarvola::Esaldia& s : p.esaldiak) {
      py::list tokens;
      for (tarvola::Tokena& t : s.tokenak)
        tokens.append(py::make_tuple(py_text(to_utf8(*piece, t.forma)), t.hutsunea, t.maiuskula,
                                     wrap(std::move(t.analisiak), piece)));
      out.append(py::make_tuple(s.id, py_text(to_utf8(*piece, s.testua)), tokens));
    }
    return out;
  }

  // JSON Lines of the paragraph's tokens, built in C++ with the tool's own
  // reading records: corpus runs spend their time here, not in Python.
  py::str jsonl(const std::shared_ptr<EnginePiece>& piece, int number) {
    tarvola::Paragrafoa p = paragraph(*piece, number);
    std::string out;
    {
      py::gil_scoped_release release;
      int sentence = 0;
      for (const tarvola::Esaldia& s : p.esaldiak) {
        ++sentence;
        int index = 0;
        for (const tarvola::Tokena& t : s.tokenak) {
          nlohmann::ordered_json record = {{"paragraph", number},
                                           {"sentence", sentence},
                                           {"index", ++index},
                                           {"form", to_utf8(*piece, t.forma)},
                                           {"space_after", t.hutsunea},
                                           {"readings", tarvola_cli::readings_json(t.analisiak, *piece)}};
          out += record.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
          out += '\n';
        }
      }
    }
    return py_text(out);
  }

  py::str cg3(const std::shared_ptr<EnginePiece>& piece, int number, bool attributes) {
    tarvola::Paragrafoa p = paragraph(*piece, number);
    std::string text;
    {
      py::gil_scoped_release release;
      text = to_utf8(*piece, p.get_CG3(attributes, false, false));
    }
    return py_text(text);
  }

  py::str multext(const std::shared_ptr<EnginePiece>& piece, int number, bool attributes) {
    tarvola::Paragrafoa p = paragraph(*piece, number);
    std::string text;
    flush_python_stdout();
    {
      // The rendering prints to standard output by design. The GIL goes
      // before the process lock is taken and comes back after it is left,
      // so that a thread holding the lock never waits for the GIL.
      py::gil_scoped_release release;
      std::lock_guard<std::mutex> lock(process_lock());
      tarvola_cli::StdoutCapture capture;
      if (!capture.ok()) throw std::runtime_error("cannot create a temporary file");
      text = to_utf8(*piece, capture.run([&] { p.print_Multext(attributes, false, false); }));
    }
    return py_text(text);
  }

  py::str check(const std::shared_ptr<EnginePiece>& piece, bool suggest) {
    require("eumorfo", "to split paragraphs into sentences");
    std::string text;
    {
      py::gil_scoped_release release;
      std::lock_guard<std::mutex> lock(mutex_);
      text = to_utf8(*piece, own_->getParagrafoaBrindel(piece->text(), suggest));
    }
    return py_text(text);
  }

  // The bare library call that analyze() wraps, timed from C++ over words
  // already in the engine's code page: the baseline of the binding's cost.
  double time_lookup(const std::vector<std::string>& words, int rounds) {
    std::vector<std::string> engine_words;
    for (const std::string& w : words) engine_words.push_back(piece_of({w, Encoding::kUtf8})->text());
    py::gil_scoped_release release;
    std::lock_guard<std::mutex> lock(mutex_);
    std::size_t sink = 0;
    const auto start = std::chrono::steady_clock::now();
    for (int r = 0; r < rounds; ++r)
      for (const std::string& w : engine_words) sink += lookup(w, std::string()).size();
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    volatile std::size_t keep = sink;
    (void)keep;
    return took.count() / (static_cast<double>(rounds) * static_cast<double>(words.size()));
  }

  std::vector<std::string> networks() const {
    std::vector<std::string> names;
    for (const auto& n : loaded_->engine->networks()) names.push_back(n.name);
    return names;
  }
  std::string config() const { return loaded_->config; }
  py::object dictionary() const {
    if (loaded_->dictionary.empty()) return py::none();
    return py::str(loaded_->dictionary);
  }

  // The personal dictionary (see changed()).
  bool add_word(const py::handle& lemma, const py::handle& category, const py::handle& extra1,
                const py::handle& extra2) {
    const std::string l = file_text(lemma, "lemma"), c = file_text(category, "category"),
                      e1 = file_text(extra1, "extra1"), e2 = file_text(extra2, "extra2");
    const std::string problem = tarvola_cli::entry_problem(l, c, e1, e2);
    if (!problem.empty()) throw py::value_error(problem);
    const std::string path = dictionary_path();
    return changed(tarvola_cli::add_entry(path, l, c, e1, e2), path);
  }

  bool remove_word(const py::handle& lemma, const py::handle& category) {
    const std::string l = file_text(lemma, "lemma"), c = file_text(category, "category");
    const std::string path = dictionary_path();
    return changed(tarvola_cli::remove_entry(path, l, c), path);
  }

  py::list words() {
    const std::string path = dictionary_path();
    py::list out;
    std::vector<std::vector<std::string>> rows;
    {
      std::lock_guard<std::mutex> lock(process_lock());
      tarvola_cli::StdoutCapture capture;
      capture.run([&] {
        tarvola::HiztegiPertsonala d(path);
        for (const tarvola::HPsarrera* e : d.sarrerak)
          rows.push_back({e->lema, e->kategoria, e->osagarria1, e->osagarria2});
      });
    }
    for (const auto& r : rows)
      out.append(py::make_tuple(py_text(tarvola_cli::cp1252_to_utf8(r[0])),
                                py_text(tarvola_cli::cp1252_to_utf8(r[1])),
                                py_text(tarvola_cli::cp1252_to_utf8(r[2])),
                                py_text(tarvola_cli::cp1252_to_utf8(r[3]))));
    return out;
  }

 private:
  static std::string path_or_empty(const py::object& value, const char* what) {
    if (value.is_none()) return {};
    py::object path = py::module_::import("os").attr("fspath")(value);
    if (!py::isinstance<py::str>(path))
      throw py::type_error(std::string(what) + " must be a str path or None");
    std::string s = path.cast<std::string>();
    if (s.empty()) throw py::value_error(std::string(what) + " is an empty path");
    return s;
  }

  void attach(std::shared_ptr<Loaded> loaded) {
    loaded_ = std::move(loaded);
    own_ = std::make_unique<tarvola::Tarvola>(loaded_->engine->get());
  }

  void detach() {
    if (!own_) return;
    std::lock_guard<std::mutex> lock(process_lock());
    tarvola_cli::StdoutCapture capture;
    capture.run([&] { own_.reset(); });  // its farewell line is not the user's output
  }

  void require(const std::string& network, const char* purpose) const {
    if (loaded_->engine->has_network(network)) return;
    throw py::value_error("the configuration has no network \"" + network + "\", needed " + purpose);
  }

  std::vector<tarvola::Analisia> lookup(const std::string& word, const std::string& network) {
    // The tool's analyze: every network, then the personal dictionary; or
    // the one network asked for.
    if (!network.empty()) return own_->analizatuTokena(word, network);
    return loaded_->engine->word_readings(*own_, word);
  }

  std::string dictionary_path() const {
    if (loaded_->dictionary.empty())
      throw py::value_error("the engine has no personal dictionary (Engine(dictionary=PATH))");
    return fs::absolute(loaded_->dictionary).string();
  }

  // Dictionary files are code page 1252 and cannot hold a placeholder.
  static std::string file_text(const py::handle& text, const char* what) {
    Input in = input_of(text, what);
    tarvola_cli::DecodedText decoded;
    std::size_t column = 0;
    tarvola_cli::decode(in.raw, in.encoding, decoded, 1, column, nullptr);
    if (!decoded.foreign.empty())
      throw py::value_error(std::string("the ") + what +
                            " holds a character the dictionary file (code page 1252) cannot hold");
    if (decoded.bytes.find_first_of("\t\r\n") != std::string::npos)
      throw py::value_error(std::string("the ") + what + " holds a tab or a line break");
    return decoded.bytes;
  }

  // The file is changed the way the tool's "dict" subcommand changes it
  // (under its lock); a change rebuilds this engine, so that every
  // operation sees it.
  bool changed(tarvola_cli::DictionaryChange change, const std::string& path) {
    using tarvola_cli::DictionaryChange;
    if (change == DictionaryChange::kAlreadyThere || change == DictionaryChange::kNotThere) return false;
    if (change != DictionaryChange::kDone) {
      PyErr_SetString(PyExc_OSError, tarvola_cli::failure_message(change, path).c_str());
      throw py::error_already_set();
    }
    std::shared_ptr<Loaded> fresh = load(loaded_->config, loaded_->dictionary);
    std::lock_guard<std::mutex> own(mutex_);
    detach();
    attach(std::move(fresh));
    return true;
  }

  std::mutex mutex_;
  std::shared_ptr<Loaded> loaded_;
  std::unique_ptr<tarvola::Tarvola> own_;
};

// One table on its own. A loaded table is only read, so one Table may serve
// any number of threads at once.
class Table {
 public:
  explicit Table(const py::object& path) {
    py::object p = py::module_::import("os").attr("fspath")(path);
    if (!py::isinstance<py::str>(p)) throw py::type_error("path must be a str path");
    path_ = p.cast<std::string>();
    std::error_code ec;
    // The loader ends the process on a file it cannot open.
    if (path_.empty() || !fs::is_regular_file(fs::u8path(path_), ec) ||
        !std::ifstream(fs::u8path(path_), std::ios::binary))
      raise_not_found("table file " + path_ + " not found or not readable");
    py::gil_scoped_release release;
    std::lock_guard<std::mutex> lock(process_lock());
    tarvola_cli::StdoutCapture capture;
    capture.run([&] { table_ = std::make_unique<tarvola::Taula>(path_); });
  }

  std::vector<Reading> analyze(const py::handle& word) const {
    auto piece = piece_of(input_of(word, "word"));
    std::vector<tarvola::Analisia> list;
    {
      py::gil_scoped_release release;
      list = table_->analizatuTokena(piece->text());
    }
    return wrap(std::move(list), piece);
  }

  std::vector<Reading> generate(const py::handle& lemma, const py::handle& tags, bool prefix,
                                bool second) const {
    Input l = input_of(lemma, "lemma"), t = input_of(tags, "tags");
    if (l.encoding != t.encoding) throw py::type_error("lemma and tags must both be str or both bytes");
    if (l.raw.find('\t') != std::string_view::npos) throw py::value_error("the lemma cannot hold a tab");
    auto piece = piece_of({std::string(l.raw) + "\t" + std::string(t.raw), l.encoding});
    const std::string& text = piece->text();
    const std::size_t cut = text.find('\t');
    check_lemma_tags(text.substr(0, cut));
    std::vector<tarvola::Analisia> forms;
    {
      py::gil_scoped_release release;
      forms = table_->sortuFormak(text.substr(0, cut), text.substr(cut + 1), prefix, second);
    }
    return wrap(std::move(forms), piece);
  }

  std::size_t states() const { return table_->egoerak.size(); }
  const std::string& path() const { return path_; }

 private:
  std::string path_;
  std::unique_ptr<tarvola::Taula> table_;
};

py::str reading_repr(const Reading& r) {
  py::str lemma = r.text(r.a.lema), tags = r.text(r.a.etiketa), net = r.text(r.a.sarea);
  std::string out = "Reading(lemma=" + std::string(py::repr(lemma)) +
                    ", tags=" + std::string(py::repr(tags.attr("strip")())) +
                    ", network=" + std::string(py::repr(net));
  if (!r.a.forma.empty()) out += ", form=" + std::string(py::repr(r.text(r.a.forma)));
  return py::str(out + ")");
}

}  // namespace

PYBIND11_MODULE(_tarvola, m) {
  m.doc() = "The compiled core of the tarvola package; use the tarvola module instead.";

  py::class_<Reading>(m, "Reading", R"doc(One reading of a word.

Pythonic attributes: lemma, tags (tuple of tag names), twol, network,
marks (dict of the mark values s/h/e that are set), form (set by
generation), capitalisation (0 lower-case start, 1 initial capital,
2 all capitals), analysis (the analysis string as the table gave it).
The library's own field names are there too: analisia, lema, etiketa,
twol, sarea, s_balioa, h_balioa, e_balioa, tasuna, iritzia, forma,
maiuskulaMota. as_dict() gives the command-line tool's JSON record.
Readings are immutable and may be shared between threads.)doc")
      .def_property_readonly("lemma", [](const Reading& r) { return r.text(r.a.lema); })
      .def_property_readonly("tags", [](const Reading& r) { return py::tuple(r.text(r.a.etiketa).attr("split")()); })
      .def_property_readonly("twol", [](const Reading& r) { return r.text(r.a.twol); })
      .def_property_readonly("network", [](const Reading& r) { return r.text(r.a.sarea); })
      .def_property_readonly("form", [](const Reading& r) { return r.text(r.a.forma); })
      .def_property_readonly("analysis", [](const Reading& r) { return r.text(r.a.analisia); })
      .def_property_readonly("capitalisation", [](const Reading& r) { return r.a.maiuskulaMota; })
      .def_property_readonly("marks", [](const Reading& r) {
        py::dict d;
        if (!r.a.s_balioa.empty()) d["s"] = r.text(r.a.s_balioa);
        if (!r.a.h_balioa.empty()) d["h"] = r.text(r.a.h_balioa);
        if (!r.a.e_balioa.empty()) d["e"] = r.text(r.a.e_balioa);
        return d;
      })
      .def_property_readonly("analisia", [](const Reading& r) { return r.text(r.a.analisia); })
      .def_property_readonly("lema", [](const Reading& r) { return r.text(r.a.lema); })
      .def_property_readonly("etiketa", [](const Reading& r) { return r.text(r.a.etiketa); })
      .def_property_readonly("sarea", [](const Reading& r) { return r.text(r.a.sarea); })
      .def_property_readonly("s_balioa", [](const Reading& r) { return r.text(r.a.s_balioa); })
      .def_property_readonly("h_balioa", [](const Reading& r) { return r.text(r.a.h_balioa); })
      .def_property_readonly("e_balioa", [](const Reading& r) { return r.text(r.a.e_balioa); })
      .def_property_readonly("tasuna", [](const Reading& r) { return r.text(r.a.tasuna); })
      .def_property_readonly("iritzia", [](const Reading& r) { return r.text(r.a.iritzia); })
      .def_property_readonly("forma", [](const Reading& r) { return r.text(r.a.forma); })
      .def_property_readonly("maiuskulaMota", [](const Reading& r) { return r.a.maiuskulaMota; })
      .def("as_dict", &Reading::as_dict, "The reading as the command-line tool's JSON record.")
      .def("__eq__", [](const Reading& a, const py::object& other) -> py::object {
        if (!py::isinstance<Reading>(other)) return py::reinterpret_borrow<py::object>(Py_NotImplemented);
        return py::bool_(a.as_dict().equal(other.cast<const Reading&>().as_dict()));
      })
      .def("__repr__", &reading_repr)
      .def(py::pickle(
          // Readings travel between processes (a Dask bag of them) as their
          // UTF-8 fields; back in the engine's code page they share one
          // piece, so that characters outside it come back whole.
          [](const Reading& r) {
            const tarvola::Analisia& a = r.a;
            py::list fields;
            for (const std::string* f : {&a.analisia, &a.lema, &a.etiketa, &a.twol, &a.sarea, &a.s_balioa,
                                         &a.h_balioa, &a.e_balioa, &a.tasuna, &a.iritzia, &a.forma})
              fields.append(r.text(*f));
            return py::make_tuple(fields, a.maiuskulaMota);
          },
          [](const py::tuple& state) {
            if (state.size() != 2) throw py::value_error("not a pickled Reading");
            const py::list fields = state[0].cast<py::list>();
            std::string joined;
            for (std::size_t i = 0; i < fields.size(); ++i)
              joined += (i > 0 ? "\t" : "") + fields[i].cast<std::string>();
            auto piece = piece_of({joined, Encoding::kUtf8});
            std::vector<std::string> parts;
            std::size_t at = 0;
            for (std::size_t tab; (tab = piece->text().find('\t', at)) != std::string::npos; at = tab + 1)
              parts.push_back(piece->text().substr(at, tab - at));
            parts.push_back(piece->text().substr(at));
            if (parts.size() != 11) throw py::value_error("not a pickled Reading");
            Reading r{tarvola::Analisia(), piece};
            tarvola::Analisia& a = r.a;
            std::string* targets[] = {&a.analisia, &a.lema, &a.etiketa, &a.twol, &a.sarea, &a.s_balioa,
                                     &a.h_balioa, &a.e_balioa, &a.tasuna, &a.iritzia, &a.forma};
            for (std::size_t i = 0; i < 11; ++i) *targets[i] = parts[i];
            a.maiuskulaMota = state[1].cast<int>();
            return r;
          }));
  m.attr("Reading").attr("__hash__") = py::none();

  py::class_<EnginePiece, std::shared_ptr<EnginePiece>>(m, "_Piece");

  py::class_<Engine>(m, "_Engine")
      .def(py::init<const py::object&, const py::object&, Engine*>(), py::arg("config") = py::none(),
           py::arg("dictionary") = py::none(), py::kw_only(), py::arg("share") = nullptr)
      .def("analyze", &Engine::analyze, R"doc(Every reading of the word: all networks in name order, then the personal
dictionary (as ``tarvola analyze``); with ``network`` only that network's
table. An unknown word has no readings. ValueError for a network the
configuration does not list.)doc", py::arg("word"), py::arg("network") = py::none())
      .def("analyze_many", &Engine::analyze_many, R"doc(``analyze`` for a batch of words, in one call (cheaper per word).)doc", py::arg("words"), py::arg("network") = py::none())
      .def("generate", &Engine::generate, R"doc(The word forms (``Reading.form``) of the lemma with the tags, e.g.
``generate("etxe", "<IZE><ARR><NUMP><ABS>")``. A lemma the data does not
know is inflected by a category tag (<ARR> <IZO> <ADI> <PIB> <LIB> <IZB>).)doc", py::arg("lemma"), py::arg("tags"))
      .def("is_valid", &Engine::is_valid, R"doc(Whether the word is valid standard Basque (or, with prefixes, begins a
standard word).)doc", py::arg("word"), py::arg("prefixes") = false)
      .def("suggest", &Engine::suggest, R"doc(Spelling suggestions for the word.)doc", py::arg("word"))
      .def("_split", &Engine::split)
      .def("_time_lookup", &Engine::time_lookup)
      .def("_sentences", &Engine::sentences)
      .def("_cg3", &Engine::cg3)
      .def("_jsonl", &Engine::jsonl)
      .def("_multext", &Engine::multext)
      .def("_check", &Engine::check)
      .def("add_word", &Engine::add_word, R"doc(Adds a word to the personal dictionary file (False when it is there
already) and reloads the engine so that every operation sees it. Copies
made before keep the dictionary they were made with.)doc", py::arg("lemma"), py::arg("category"),
           py::arg("extra1") = "", py::arg("extra2") = "")
      .def("remove_word", &Engine::remove_word, R"doc(Removes a word from the personal dictionary file (False when it is not
there) and reloads the engine.)doc", py::arg("lemma"), py::arg("category"))
      .def("_words", &Engine::words)
      .def_property_readonly("networks", &Engine::networks)
      .def_property_readonly("config", &Engine::config)
      .def_property_readonly("dictionary", &Engine::dictionary);

  py::class_<Table>(m, "Table", R"doc(One transducer table file on its own (a network's table).

Table(path) loads it at once; FileNotFoundError when it is missing. A
Table is only read after loading: one Table may serve many threads.)doc")
      .def(py::init<const py::object&>(), py::arg("path"))
      .def("analyze", &Table::analyze, "The readings of the word in this table.", py::arg("word"))
      .def("generate", &Table::generate,
           "The forms (Reading.form) of the lemma with the tags, e.g. (\"etxe\", \"<IZE><ARR><NUMP><ABS>\").",
           py::arg("lemma"), py::arg("tags"), py::arg("prefix") = false, py::arg("second") = false)
      .def_property_readonly("states", &Table::states)
      .def_property_readonly("path", &Table::path);
}
