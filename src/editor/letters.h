// Latin letters, capital and small, as the German spelling has them.
#pragma once

#include <string>
#include <string_view>

namespace editor {

/// Of the Latin script, marks that stand behind their letter included. Other scripts are no matter of German spelling.
bool isLetter(char32_t c);

/// The small letter; U+1E9E (the capital of ß) is ß, and what is no capital itself.
char32_t lowered(char32_t c);
std::u32string lowered(std::u32string_view word);

/// Whether `word` is written in capitals throughout, ß counting as one for those who lack a better.
bool isInCapitals(std::u32string_view word);

/// What words have in common that are the same in capitals: small letters, ß as ss.
std::u32string withoutCapitals(std::u32string_view word);

}  // namespace editor
