// Rich text as a control of a window.
#include "base/rich_text_box.h"

namespace base {

void RichTextBox::attach(RichText& shown) {
  detach();
  moveInto(shown);
  memory_.setDocument({});
}

void RichTextBox::detach() {
  if (text_ != &memory_) moveInto(memory_);
}

void RichTextBox::tell(TextListener* listener) {
  listener_ = listener;
  text_->tell(listener);
}

// The format of what is typed next stands in no document.
void RichTextBox::moveInto(RichText& next) {
  text_->tell(nullptr);
  const std::uint64_t revisionNow = revision();
  const TextSelection place = selection();
  const CharFormat typedNext = format();
  next.setDocument(document());
  next.select(place);
  if (place.length == 0 && next.format() != typedNext) next.setFormat(typedNext);
  text_ = &next;
  text_->tell(listener_);
  earlierRevisions_ = revisionNow - next.revision();
}

}  // namespace base
