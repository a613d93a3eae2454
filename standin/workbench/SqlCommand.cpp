#include "standin/workbench/SqlCommand.h"

#include "database/embedded/script.h"
#include "standin/home/schema_step.h"
#include "standin/workbench/DatabaseAccess.h"
#include "standin/workbench/json_text.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <ostream>
#include <system_error>

namespace tellurix::standin {

namespace {

std::string rowsJson(base::Recordset& rows) {
    // Rows first: for its columns alone a server would be asked once more.
    rows.atEnd();
    const std::size_t fields = rows.fieldCount();
    std::string text = R"({"columns": [)";
    for (std::size_t i = 0; i < fields; ++i) {
        if (i > 0) text += ", ";
        text += jsonText(rows.fieldName(i));
    }
    text += R"(], "rows": [)";
    for (bool first = true; !rows.atEnd(); rows.moveNext(), first = false) {
        text += first ? "[" : ", [";
        for (std::size_t i = 0; i < fields; ++i) {
            if (i > 0) text += ", ";
            text += jsonValue(rows.field(i));
        }
        text += "]";
    }
    return text + "]}";
}

std::string errorJson(const std::exception& error) {
    std::string position = "null";
    if (const auto* failure = dynamic_cast<const base::DatabaseError*>(&error);
        failure != nullptr && failure->position() != base::DatabaseError::noPosition) {
        position = std::to_string(failure->position());
    }
    return R"({"error": {"message": )" + jsonText(error.what()) + R"(, "position": )" + position + "}}";
}

} // namespace

bool runTexts(base::Connection& connection, const std::vector<std::string>& texts, std::ostream& out) {
    bool allSucceeded = true;
    for (const std::string& text : texts) {
        std::string answer;
        // A row can fail when it is fetched, so the line is printed when it is whole.
        try {
            const base::ExecuteResult result = connection.execute(text);
            answer = result.rows ? rowsJson(*result.rows)
                                 : R"({"rowcount": )" + std::to_string(result.rowsAffected) + "}";
        } catch (const std::exception& error) {
            answer = errorJson(error);
            allSucceeded = false;
        }
        out << answer << std::endl;
    }
    return allSucceeded;
}

std::vector<std::string> textsOfStream(std::istream& in) {
    const std::string text{std::istreambuf_iterator<char>{in}, {}};
    const std::vector<std::string_view> batches = embedded::splitBatches(text);
    return {batches.begin(), batches.end()};
}

std::vector<std::string> textsOfFile(const std::string& path) {
    std::ifstream file{path, std::ios::binary};
    if (!file) throw std::system_error{errno, std::generic_category(), path};
    return textsOfStream(file);
}

int runSql(const CommandLine& line, std::istream& in, std::ostream& out) {
    const std::vector<std::string> texts = !line.texts.empty()      ? line.texts
                                           : !line.textFile.empty() ? textsOfFile(line.textFile)
                                                                    : textsOfStream(in);
    DatabaseAccess database{line};
    const auto connection = database.connect();
    return runTexts(*connection, texts, out) ? 0 : 1;
}

int runPrepare(const CommandLine& line, std::ostream& out) {
    DatabaseAccess database{line};
    out << database.name() << "\n";
    for (const std::string& sentence : prepare(*database.connect(), line.withSample))
        out << sentence << "\n";
    return 0;
}

} // namespace tellurix::standin
