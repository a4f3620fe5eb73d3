// Which names a folder may take for one.
#pragma once

#include <string>
#include <vector>

namespace platform {

// The names by which to ask a folder whether it tells spellings of `name` apart: the name in another letter case, and
// the name in the other Unicode form, as far as there are such. `name` is UTF-8 or any other bytes, without "/".
//
// Only what every volume that ignores case folds is changed: the ASCII letters or, where the name has none, one other
// letter whose case mapping goes both ways. A tell-tale with a letter that the volume does not fold would be a name of
// its own there.
std::vector<std::string> OtherSpellings(const std::string& name);

// How much alike two names are, in rising order.
enum class Likeness {
    None,
    Form,  // equal but for letter case, Unicode form and letters that fold to several ("ss")
    Case,  // equal but for the case of single letters, or altogether
};

// Compares two names. Of bytes that are not UTF-8 the case of ASCII letters alone is ignored.
Likeness CompareNames(const std::string& left, const std::string& right);

}  // namespace platform
