// The lines of a profile file: where bytes are cut into lines, what each line is, and memory for new ones.
#include "base/profile_lines.h"

#include <algorithm>

namespace base {
namespace {

constexpr std::size_t kPieceSize = std::size_t{64} * 1024;

std::string_view withoutLineEnd(std::string_view bytes) {
  bytes.remove_suffix(lineEndOf(bytes).size());
  return bytes;
}

}  // namespace

std::string_view contentOf(const ProfileLine& line) { return withoutOuterBlanks(withoutLineEnd(line.bytes())); }

std::string_view valueOf(const ProfileLine& line) {
  const std::string_view text = withoutLineEnd(line.bytes());
  // Between the name and its "=" there is nothing but blanks.
  auto equals = static_cast<std::size_t>(line.name().data() + line.name().size() - text.data());
  while (text[equals] != '=') ++equals;
  return withoutOuterBlanks(text.substr(equals + 1));
}

ProfileLine::ProfileLine(std::string_view bytes)
    : start_(bytes.data()), size_(static_cast<std::uint32_t>(bytes.size())) {
  const std::string_view content = contentOf(*this);
  if (content.empty()) return;
  if (content.front() == ';') {
    kind_ = LineKind::comment;
  } else if (content.front() == '[') {
    setName(LineKind::header, content.substr(1, std::min(content.find(']'), content.size()) - 1));
  } else if (const std::size_t equals = content.find('='); equals != std::string_view::npos) {
    setName(LineKind::entry, content.substr(0, equals));
  } else {
    kind_ = LineKind::text;
  }
}

ProfileLine::ProfileLine(std::string_view bytes, std::size_t nameSize)
    : start_(bytes.data()),
      size_(static_cast<std::uint32_t>(bytes.size())),
      nameSize_(static_cast<std::uint32_t>(nameSize)),
      kind_(LineKind::entry) {}

void ProfileLine::setName(LineKind kind, std::string_view name) {
  name = withoutOuterBlanks(name);
  kind_ = kind;
  nameStart_ = static_cast<std::uint32_t>(name.data() - start_);
  nameSize_ = static_cast<std::uint32_t>(name.size());
}

void ProfileLine::setBytes(std::string_view bytes) {
  start_ = bytes.data();
  size_ = static_cast<std::uint32_t>(bytes.size());
}

LineReader::LineReader(std::string_view bytes)
    : bytes_(bytes), carriageReturn_(bytes.find('\r')), lineFeed_(bytes.find('\n')) {}

std::string_view LineReader::next() {
  const std::size_t start = start_;
  const std::size_t end = std::min({carriageReturn_, lineFeed_, bytes_.size()});
  const bool both = end == carriageReturn_ && lineFeed_ == carriageReturn_ + 1;
  start_ = std::min(end + (both ? 2 : 1), bytes_.size());
  // Each is looked for only when it has been passed, lest a file of CR alone be searched for LF line by line.
  if (carriageReturn_ < start_) carriageReturn_ = bytes_.find('\r', start_);
  if (lineFeed_ < start_) lineFeed_ = bytes_.find('\n', start_);
  return bytes_.substr(start, start_ - start);
}

std::string_view TextStore::keep(std::string_view a, std::string_view b, std::string_view c, std::string_view d) {
  const std::size_t size = a.size() + b.size() + c.size() + d.size();
  if (size > free_) {
    free_ = std::max(size, kPieceSize);
    next_ = pieces_.emplace_back(new char[free_]).get();
  }
  const char* const text = next_;
  append(a);
  append(b);
  append(c);
  append(d);
  free_ -= size;
  return {text, size};
}

void TextStore::append(std::string_view part) { next_ = std::copy(part.begin(), part.end(), next_); }

}  // namespace base
