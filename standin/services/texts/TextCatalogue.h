#pragma once

#include "module/base/text.h"

#include <map>
#include <string>
#include <string_view>

namespace tellurix::standin {

/// All texts that are shown to the user and do not stand in a form, by language and key. A key is a
/// text number, the caption of a form's control, or a name of the services' own; the format of the
/// data files is told at the top of `standin/data/texts_de.txt`.
class TextCatalogue {
public:
    /// The German and English texts that are built into the program.
    static TextCatalogue builtIn();

    /// Reads a data file.
    /// @throws std::invalid_argument naming the line that is no "key = text", or gives a key twice
    void read(const std::string& language, std::string_view file);

    /// The text, or null when the language has none. An unknown language is taken for German.
    const std::string* find(const std::string& language, std::string_view key) const;
    /// The text; a missing one shows as its key in brackets, "[4711]", so that somebody reports it.
    std::string text(const std::string& language, std::string_view key) const;

private:
    using Texts = std::map<std::string, std::string, std::less<>>;
    std::map<std::string, Texts> languages_;
};

using base::filled;

} // namespace tellurix::standin
