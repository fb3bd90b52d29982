// The rich text in memory keeps the contract.
#include "base/memory_rich_text.h"

#include <memory>
#include <string>
#include <string_view>

#include "base/text.h"
#include "support/rich_text_contract.h"

namespace support {
namespace {

// The two compositions that the contract asks for.
std::string composed(std::string_view text) {
  return base::replaceAll(base::replaceAll(text, "a\u0308", "ä"), "A\u030A", "Å");
}

std::shared_ptr<base::RichText> makeMemoryRichText() { return std::make_shared<base::MemoryRichText>(composed); }

INSTANTIATE_TEST_SUITE_P(Memory, RichTextContract, testing::Values(MakeRichText{"MemoryRichText", makeMemoryRichText}),
                         testing::PrintToStringParamName());

TEST(MemoryRichText, withoutAComposerLeavesTextAsItArrives) {
  base::MemoryRichText text;
  text.replaceSelection("a\u0308");
  EXPECT_EQ(text.plainText(), "a\u0308");
  EXPECT_EQ(text.countAll().characters, 2);
}

}  // namespace
}  // namespace support
