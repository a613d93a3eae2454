#include "database/embedded/translation/Translator.h"

#include "database/embedded/values/Fault.h"

namespace tellurix::embedded {

void Translator::start() {
    parameters_.clear();
    sourceCount_ = 0;
    rememberedCount_ = 0;
    depth_ = deepest_ = 0;
    usedColumns_.clear();
    narrowing_.clear();
}

Translation Translator::finish(std::string sql) {
    Translation translation;
    translation.sql = std::move(sql);
    translation.parameters = parameters_;
    if (deepest_ > 0) translation.deepestPosition = deepestPosition_;
    return translation;
}

const Table& Translator::table(const Name& name) {
    if (name.written.starts_with('@')) {
        const auto found = variables_.tables.find(name.folded);
        if (found == variables_.tables.end())
            failUnknownName("The table variable " + std::string(name.written) + " is not declared",
                            name.position);
        return *found->second;
    }
    const Table* const found = catalogue_.find(name.folded);
    if (found == nullptr) failUnknownName("There is no table " + std::string(name.written), name.position);
    return *found;
}

Translation Translator::value(Expression& expression, const Type& type) {
    start();
    Fragment result = convert(value(expression), type, {.purpose = Destination::Purpose::cast});
    return finish("SELECT " + result.sql);
}

Translation Translator::condition(Expression& expression) {
    start();
    return finish("SELECT " + condition(&expression, "IF or WHILE").sql);
}

} // namespace tellurix::embedded
