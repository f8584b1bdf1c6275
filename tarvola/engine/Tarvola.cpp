#include "tarvola/engine/Tarvola.h"

#include <cstdio>
#include <utility>

#include "tarvola/engine/internal/engine_resources.h"
#include "tarvola/engine/network_config.h"
#include "tarvola/tables/Taula.h"

namespace tarvola {

Tarvola::Tarvola() : hp_(nullptr) {}

Tarvola::Tarvola(const std::string& konfigurazioa)
    : konfigurazioa_(konfigurazioa),
      hp_(nullptr),
      resources_(std::make_shared<internal::EngineResources>()) {
  kargatu_sareak();
  resources_->dictionary = std::make_unique<HiztegiPertsonala>();
  hp_ = resources_->dictionary.get();
}

Tarvola::Tarvola(const std::string& konfigurazioa, const std::string& hiztegia)
    : konfigurazioa_(konfigurazioa),
      hiztegia_(hiztegia),
      hp_(nullptr),
      resources_(std::make_shared<internal::EngineResources>()) {
  kargatu_sareak();
  resources_->dictionary = std::make_unique<HiztegiPertsonala>(hiztegia_);
  hp_ = resources_->dictionary.get();
}

Tarvola::Tarvola(const Tarvola& other) = default;

Tarvola& Tarvola::operator=(const Tarvola& other) = default;

Tarvola::~Tarvola() {
  // The tables themselves go with the last engine that shares them.
  std::puts("Taulak husten...");
}

void Tarvola::kargatu_sareak() {
  // The whole file is read and closed before the first table is loaded.
  const std::vector<std::string> paths = engine::read_network_config(konfigurazioa_);
  for (const std::string& path : paths) {
    std::string name = engine::network_name(path);
    auto taula = std::make_unique<Taula>(path);
    auto sarea = std::make_unique<Sarea>(name, path, taula.get());
    taula.release();  // the network owns it now
    sareak_.insert_or_assign(name, sarea.get());
    resources_->networks.insert_or_assign(std::move(name), std::move(sarea));
    std::putchar('\n');
  }
}

void Tarvola::kargatu_taula(Taula* taula) { taula->kargatu(); }

std::vector<Analisia> Tarvola::analizatuTokena(std::string tokena, std::string sarea) {
  auto it = sareak_.find(sarea);
  if (it == sareak_.end() || it->second == nullptr || it->second->taula == nullptr) return {};
  return it->second->taula->analizatuTokena(std::move(tokena));
}

std::vector<Analisia> Tarvola::analizatuTokena(std::string tokena) {
  std::vector<Analisia> result;
  for (const auto& [name, sarea] : sareak_) {
    if (sarea == nullptr || sarea->taula == nullptr) continue;
    std::vector<Analisia> readings = sarea->taula->analizatuTokena(tokena);
    result.insert(result.end(), std::make_move_iterator(readings.begin()),
                  std::make_move_iterator(readings.end()));
  }
  return result;
}

Paragrafoa Tarvola::analizatu_paragrafoa(int /*id*/, std::string testua) {
  // The caller's number is not used: the paragraph is always number 1.
  Paragrafoa paragrafoa(1, std::move(testua));
  if (hp_ != nullptr) paragrafoa.analizatu(sareak_, *hp_, true);
  return paragrafoa;
}

}  // namespace tarvola
