#include "common/items.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <memory>
#include <thread>

#include "common/io.h"
#include "common/paragraphs.h"
#include "common/progress.h"

namespace tarvola_cli {

namespace {

const std::vector<std::string>& inputs_or_stdin(const std::vector<std::string>& files) {
  static const std::vector<std::string> kStdin{"-"};
  return files.empty() ? kStdin : files;
}

// The words, else a line at a time from the files; see for_each_word.
bool for_each_line_item(const std::vector<std::string>& words, const std::vector<std::string>& files,
                        const std::function<void(const std::string&)>& f) {
  if (!words.empty()) {
    for (const std::string& w : words) f(w);
    return true;
  }
  bool ok = true;
  for (const std::string& name : inputs_or_stdin(files)) {
    std::FILE* file = open_input(name);
    if (file == nullptr) {
      ok = false;
      continue;
    }
    LineReader reader(file);
    std::string piece, line;
    bool ends = false;
    while (reader.next(piece, ends)) {
      line += piece;
      if (!ends) continue;
      if (line.find_first_not_of(" \t") != std::string::npos) f(line);
      line.clear();
    }
    if (reader.failed()) {
      std::cerr << "tarvola: reading " << name << " failed\n";
      ok = false;
    }
    close_input(file);
  }
  return ok;
}

// The item converted for the engine; false (message printed) when it cannot
// be.
bool engine_text(const std::string& item, Encoding encoding, EnginePiece& piece) {
  bool bad = false;
  if (!to_engine(item, encoding, [&](std::size_t, std::size_t) { bad = true; }, piece)) {
    std::cerr << "tarvola: \"" << item << "\" holds more than " << kPlaceholders
              << " distinct characters outside code page 1252; skipped\n";
    return false;
  }
  if (bad)
    std::cerr << "tarvola: \"" << item
              << "\" is not UTF-8; its bytes are passed through unchanged (see --encoding)\n";
  return true;
}

}  // namespace

bool for_each_word(const std::vector<std::string>& words, const CommonOptions& options,
                   const WordFunction& f, std::size_t* skipped) {
  return for_each_line_item(words, options.inputs, [&](const std::string& item) {
    EnginePiece piece;
    if (engine_text(item, options.text_encoding(), piece))
      f(item, piece);
    else if (skipped != nullptr)
      ++*skipped;
  });
}

std::string results_text(const std::string& item, const std::vector<std::string>& results) {
  std::string text;
  for (const std::string& r : results) text.append(item).append("\t").append(r).append("\n");
  if (results.empty()) text.append(item).append("\t+?\n");
  text += '\n';
  return text;
}

void write_results(Output& out, const std::string& item, const std::vector<std::string>& results) {
  out.write(results_text(item, results));
  out.end_item();
}

bool for_each_paragraph(const CommonOptions& options,
                        const std::function<void(const EnginePiece&)>& f) {
  bool ok = true;
  Progress progress;
  std::size_t items = 0, before = 0;
  for (const std::string& name : inputs_or_stdin(options.inputs)) {
    std::FILE* file = open_input(name);
    if (file == nullptr) {
      ok = false;
      continue;
    }
    ParagraphSource source(file, name == "-" ? "<stdin>" : name, options.text_encoding(),
                           options.mode());
    EnginePiece piece;
    while (source.next(piece)) {
      f(piece);
      progress.update(++items, before + source.bytes_read());
    }
    before += source.bytes_read();
    if (source.failed()) {
      std::cerr << "tarvola: reading " << name << " failed\n";
      ok = false;
    }
    close_input(file);
  }
  return ok;
}

bool render_paragraphs(const CommonOptions& options, tarvola::Tarvola& engine, Output& out,
                       const std::function<std::string(tarvola::Tarvola&, const EnginePiece&, int)>& render) {
  unsigned threads = options.unbuffered ? 1 : options.threads;
  if (threads == 0) threads = std::max(1u, std::thread::hardware_concurrency());
  // A block is a few hundred paragraphs: enough to keep every copy busy,
  // small enough that memory stays flat on any input.
  const std::size_t block_size = threads == 1 ? 1 : 64 * threads;
  std::vector<std::unique_ptr<tarvola::Tarvola>> copies;
  for (unsigned t = 1; t < threads; ++t) copies.push_back(std::make_unique<tarvola::Tarvola>(engine));
  auto engine_of = [&](unsigned t) -> tarvola::Tarvola& { return t == 0 ? engine : *copies[t - 1]; };

  std::vector<EnginePiece> block;
  std::vector<std::string> texts;
  int number = 0;
  auto run_block = [&] {
    const int first = number - static_cast<int>(block.size()) + 1;
    texts.assign(block.size(), std::string());
    if (threads == 1 || block.size() == 1) {
      for (std::size_t i = 0; i < block.size(); ++i) texts[i] = render(engine, block[i], first + static_cast<int>(i));
    } else {
      std::vector<std::exception_ptr> failures(threads);
      std::vector<std::thread> pool;
      for (unsigned t = 0; t < threads; ++t)
        pool.emplace_back([&, t] {
          try {
            for (std::size_t i = t; i < block.size(); i += threads)
              texts[i] = render(engine_of(t), block[i], first + static_cast<int>(i));
          } catch (...) {
            failures[t] = std::current_exception();
          }
        });
      for (std::thread& th : pool) th.join();
      for (const std::exception_ptr& f : failures)
        if (f) std::rethrow_exception(f);
    }
    for (const std::string& text : texts) {
      out.write(text);
      out.end_item();
    }
    block.clear();
  };
  const bool ok = for_each_paragraph(options, [&](const EnginePiece& piece) {
    block.push_back(piece);
    ++number;
    if (block.size() == block_size) run_block();
  });
  run_block();
  // A copy says farewell on standard output, which may be the output
  // (the capture flushes it first).
  StdoutCapture capture;
  forward_diagnostics(capture.run([&] { copies.clear(); }), options.verbose);
  return ok;
}

}  // namespace tarvola_cli
