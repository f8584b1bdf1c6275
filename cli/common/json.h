// JSON Lines output: one object per input item, always UTF-8.
#ifndef TARVOLA_CLI_COMMON_JSON_H
#define TARVOLA_CLI_COMMON_JSON_H

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "common/encoding.h"
#include "common/io.h"
#include "tarvola/analysis/Analisia.h"

namespace tarvola_cli {

// A reading with the record's field names; texts restored through `piece`.
nlohmann::ordered_json reading_json(const tarvola::Analisia& a, const EnginePiece& piece);
nlohmann::ordered_json readings_json(const std::vector<tarvola::Analisia>& readings,
                             const EnginePiece& piece);
void write_json_line(Output& out, const nlohmann::ordered_json& object);

}  // namespace tarvola_cli

#endif
