#include "common/json.h"

namespace tarvola_cli {

nlohmann::ordered_json reading_json(const tarvola::Analisia& a, const EnginePiece& piece) {
  auto text = [&](const std::string& s) { return piece.restore(s, Encoding::kUtf8); };
  return {{"analisia", text(a.analisia)}, {"lema", text(a.lema)},
          {"etiketa", text(a.etiketa)},   {"twol", text(a.twol)},
          {"sarea", text(a.sarea)},       {"s_balioa", text(a.s_balioa)},
          {"h_balioa", text(a.h_balioa)}, {"e_balioa", text(a.e_balioa)},
          {"tasuna", text(a.tasuna)},     {"iritzia", text(a.iritzia)},
          {"forma", text(a.forma)},       {"maiuskulaMota", a.maiuskulaMota}};
}

nlohmann::ordered_json readings_json(const std::vector<tarvola::Analisia>& readings,
                             const EnginePiece& piece) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const tarvola::Analisia& a : readings) list.push_back(reading_json(a, piece));
  return list;
}

// Text that is not UTF-8 is passed through the tool unchanged, but JSON
// must be UTF-8: such bytes are written as U+FFFD instead.
void write_json_line(Output& out, const nlohmann::ordered_json& object) {
  out.write(object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace));
  out.write("\n");
  out.end_item();
}

}  // namespace tarvola_cli
