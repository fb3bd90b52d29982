// The building of documents. The present paragraph grows in buffers that are used again for the next.
#include "editor/document_builder.h"

#include <functional>
#include <utility>

namespace editor {
namespace {

constexpr std::size_t kMostFormats = 65'536;

}  // namespace

std::size_t DocumentBuilder::Hash::operator()(const base::CharFormat& format) const {
  const std::size_t marks = (format.bold ? 1U : 0U) | (format.italic ? 2U : 0U) | (format.underline ? 4U : 0U) |
                            (format.strikeOut ? 8U : 0U) | (static_cast<std::size_t>(format.script) << 4U);
  std::size_t hash = std::hash<std::string>()(format.family);
  for (const std::size_t part : {std::hash<double>()(format.points), marks, std::size_t{format.colour.value_or(~0U)}}) {
    hash = hash * 1'000'003U ^ part;
  }
  return hash;
}

std::uint32_t DocumentBuilder::indexOf(const base::CharFormat& format) {
  const auto found = indices_.find(format);
  if (found != indices_.end()) return found->second;
  if (formats_.size() == kMostFormats) return kMostFormats - 1;
  const auto index = static_cast<std::uint32_t>(formats_.size());
  formats_.push_back(format);
  indices_.emplace(format, index);
  return index;
}

void DocumentBuilder::append(std::string_view text, std::uint32_t format) {
  if (text.empty()) return;
  if (runs_.empty() || runs_.back().format != format) runs_.push_back({0, format});
  runs_.back().size += static_cast<std::uint32_t>(text.size());
  text_ += text;
  written_ += text.size();
}

void DocumentBuilder::endParagraph(std::uint32_t endFormat, base::Alignment alignment) {
  // Copies, which take no more memory than they need.
  paragraphs_.push_back({text_, runs_, endFormat, alignment});
  text_.clear();
  runs_.clear();
}

base::Document DocumentBuilder::take() { return {std::move(formats_), std::move(paragraphs_)}; }

}  // namespace editor
