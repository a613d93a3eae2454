#include "tests/support/TestFolder.h"

#include "standin/services/files/DocumentFilesService.h"

#include <sys/resource.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>

namespace tellurix::tests {
namespace {

using Present = host::DocumentFiles::Present;

/// No file can become longer than that, as on a disk that is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit little{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &little);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handling_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*handling_)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before_{};
};

class DocumentFiles : public testing::Test {
protected:
    TestFolder from;
    TestFolder office;
    standin::DocumentFilesService service;
    host::DocumentFiles& files = service;
};

TEST_F(DocumentFiles, BothSeparatorsPartAPath) {
    const std::pair<const char*, const char*> paths[] = {{"C:\\Verträge\\Müller 1.pdf", "Müller 1.pdf"},
                                                         {"/home/anna/a.pdf", "a.pdf"},
                                                         {"\\\\server\\share/x\\b.doc", "b.doc"},
                                                         {"c.pdf", "c.pdf"},
                                                         {"folder\\", ""}};
    for (const auto& [path, name] : paths)
        EXPECT_EQ(files.fileName(path), name);
}

TEST_F(DocumentFiles, CopiesUnderItsOwnNameAndReplaces) {
    from.write("Vertrag ä.pdf", "new");
    std::string source = from / "Vertrag ä.pdf";
    std::string folder = office / "";
    std::ranges::replace(folder, '/', '\\');
    EXPECT_EQ(files.find(source, folder), Present::no);
    files.copy(source, folder);
    EXPECT_EQ(office.read("Vertrag ä.pdf"), "new");
    EXPECT_EQ(files.find(source, folder), Present::same);
    from.write("Vertrag ä.pdf", "old");
    EXPECT_EQ(files.find(source, folder), Present::different) << "the same length";
    std::ranges::replace(source, '/', '\\');
    files.copy(source, folder);
    EXPECT_EQ(office.read("Vertrag ä.pdf"), "old");
    EXPECT_EQ(office.files(), std::set<std::string>{"Vertrag ä.pdf"}) << "nothing beside it";
    files.copy(office / "Vertrag ä.pdf", folder);
    EXPECT_EQ(office.read("Vertrag ä.pdf"), "old") << "a file that is there already, onto itself";
}

TEST_F(DocumentFiles, AFailureIsToldInTheSystemsWordsAndLeavesNothing) {
    from.write("a.pdf", std::string(100000, 'x'));
    office.write("a.pdf", "before");
    std::filesystem::create_directory(from / "folder.pdf");
    struct Case {
        const char* rule;
        std::string source;
        std::string folder;
        const char* words;
    };
    const Case cases[] = {
        {"a folder that is missing", from / "a.pdf", office / "missing", "No such file or directory"},
        {"a folder that is a file", from / "a.pdf", office / "a.pdf", "Not a directory"},
        {"a folder that cannot be written", from / "a.pdf", "/sys/kernel", "denied"},
        {"a source that is missing", from / "b.pdf", office / "", "No such file or directory"},
        {"a source that is a folder", from / "folder.pdf", office / "", "directory"},
        {"no name", from / "", office / "", "directory"},
        {"a name that is none", from / (std::string(300, 'n') + ".pdf"), office / "", "File name too long"},
        {"no folder", from / "a.pdf", "", "No such file or directory"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        for (const bool copying : {true, false}) {
            if (!copying && std::string{c.folder} == "/sys/kernel") continue; // may be read
            try {
                copying ? files.copy(c.source, c.folder) : void(files.find(c.source, c.folder));
                ADD_FAILURE();
            } catch (const std::runtime_error& error) {
                EXPECT_NE(std::string{error.what()}.find(c.words), std::string::npos) << error.what();
            }
        }
    }
    {
        const FullDisk full{50000};
        EXPECT_THROW(files.copy(from / "a.pdf", office / ""), std::runtime_error);
    }
    EXPECT_EQ(office.files(), std::set<std::string>{"a.pdf"});
    EXPECT_EQ(office.read("a.pdf"), "before");
}

} // namespace
} // namespace tellurix::tests
