// The rich text in memory and the control that rests on it keep the contract.
#include "base/memory_rich_text.h"

#include <memory>
#include <string>
#include <string_view>

#include "base/rich_text_box.h"
#include "base/text.h"
#include "support/rich_text_contract.h"
#include "support/undo_contract.h"

namespace support {
namespace {

// The two compositions that the contract asks for.
std::string composed(std::string_view text) {
  return base::replaceAll(base::replaceAll(text, "a\u0308", "ä"), "A\u030A", "Å");
}

std::shared_ptr<base::RichText> makeMemoryRichText() { return std::make_shared<base::MemoryRichText>(composed); }

std::shared_ptr<base::RichText> makeRichTextBox() {
  const auto box = std::make_shared<base::RichTextBox>();
  box->composeWith(composed);
  return box;
}

struct Shown {
  base::MemoryRichText text{composed};
  base::RichTextBox box;
};

std::shared_ptr<base::RichText> makeAttachedBox() {
  const auto shown = std::make_shared<Shown>();
  shown->box.attach(shown->text);
  return {shown, &shown->box};
}

INSTANTIATE_TEST_SUITE_P(Memory, RichTextContract,
                         testing::Values(MakeRichText{"MemoryRichText", makeMemoryRichText},
                                         MakeRichText{"RichTextBox", makeRichTextBox},
                                         MakeRichText{"AttachedRichTextBox", makeAttachedBox}),
                         testing::PrintToStringParamName());

TEST(RichTextBox, keepsTextFormatsAndSelectionWhenItIsShownAndHidden) {
  const base::CharFormat next{.family = "Courier New", .points = 9};
  base::MemoryRichText shown;
  base::RichTextBox box;
  const auto keeps = [&](base::TextSelection place) {
    EXPECT_TRUE(sameContent(box.document(), sampleDocument()));
    EXPECT_EQ(box.selection(), place);
  };
  box.setDocument(sampleDocument());
  box.select({.start = 3, .length = 5});
  std::uint64_t revision = box.revision();
  box.attach(shown);
  keeps({3, 5});
  EXPECT_EQ(shown.plainText(), box.plainText());
  EXPECT_EQ(box.revision(), revision);

  box.select({.start = 4, .length = 0});
  box.setFormat(next);
  box.detach();
  keeps({4, 0});
  EXPECT_EQ(box.format(), next);
  shown.setPlainText("no longer shown");
  keeps({4, 0});

  revision = box.revision();
  box.attach(shown);
  box.replaceSelection("x");
  EXPECT_GT(box.revision(), revision);
  EXPECT_EQ(box.format(), next);
}

TEST(MemoryRichText, withoutAComposerLeavesTextAsItArrives) {
  base::MemoryRichText text;
  text.replaceSelection("a\u0308");
  EXPECT_EQ(text.plainText(), "a\u0308");
  EXPECT_EQ(text.countAll().characters, 2);
}

}  // namespace
}  // namespace support
