#include "written_value.h"

#include "json/writer.h"
#include "support/held.h"
#include "support/zol_text.h"

namespace {

template <class Writer>
std::string writtenBy(ZOL::json::Value value) {
  Writer writer;
  writer.copy(value);
  const Held<ZOL::IZolString> out(createZolString());
  writer.giveTo(out.get());
  return bytesIn(*out);
}

}  // namespace

std::string compactText(ZOL::json::Value value) {
  return writtenBy<ZOL::json::CompactWriter>(value);
}

std::string prettyText(ZOL::json::Value value) { return writtenBy<ZOL::json::PrettyWriter>(value); }
