#include "tests/database/tds/TdsServer.h"

#include "module/base/text.h"
#include "tests/database/tds/TdsMessage.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sqlite3.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <functional>
#include <map>
#include <regex>
#include <stdexcept>
#include <vector>

namespace tellurix::tests {

namespace {

constexpr std::size_t packetSize = 4096;
constexpr std::size_t headSize = 8;
constexpr std::uint8_t afterBatch = 0xFD;
constexpr std::uint8_t afterProcedure = 0xFE;
constexpr std::uint8_t withinProcedure = 0xFF;

enum Kind : std::uint8_t {
    batch = 1,
    procedure = 3,
    answer = 4,
    attention = 6,
    login = 16,
    beforeLogin = 18
};

int numberOf(base::DatabaseErrorCategory category) {
    using enum base::DatabaseErrorCategory;
    switch (category) {
    case syntax:
        return 102;
    case unknownName:
        return 208;
    case conversion:
        return 245;
    case constraint:
        return 2627;
    case locked:
        return 1222;
    default:
        return 50000;
    }
}

/// What a server accepts besides, and the embedded database has no use for.
std::string understood(const std::string& text) {
    static const std::regex options{
        "^\\s*SET\\s+(LANGUAGE|ARITHABORT|LOCK_TIMEOUT|TEXTSIZE|QUOTED_IDENTIFIER|ANSI_\\w+|"
        "CONCAT_\\w+|IMPLICIT_\\w+|TRANSACTION)\\b.*",
        std::regex::icase};
    if (std::regex_match(text, options)) return "SET NOCOUNT OFF";
    if (text == "SELECT SUSER_SNAME()") return "SELECT N'test'";
    if (text == "SELECT SCHEMA_NAME()") return "SELECT N'dbo'";
    return text;
}

/// What the catalogue tells, out of the file's own.
class CatalogueOfFile {
public:
    explicit CatalogueOfFile(const std::filesystem::path& file) { sqlite3_open(file.c_str(), &file_); }
    ~CatalogueOfFile() { sqlite3_close(file_); }
    CatalogueOfFile(const CatalogueOfFile&) = delete;
    CatalogueOfFile& operator=(const CatalogueOfFile&) = delete;

    std::string columns(const std::string& table) {
        std::string query;
        each(table, [&](const std::string& name, const std::string& type, int) {
            std::smatch parts;
            std::regex_match(type, parts, std::regex{"(\\w+)(?:\\((-?\\w+)(?:,(\\w+))?\\))?.*"});
            static const std::map<std::string, int> types{
                {"bit", -7},    {"tinyint", -6},  {"smallint", 5}, {"int", 4},   {"bigint", -5},
                {"decimal", 3}, {"numeric", 2},   {"money", 3},    {"float", 6}, {"real", 7},
                {"date", 91},   {"datetime", 93}, {"varchar", 12}, {"char", 1},  {"nchar", -8},
                {"dec", 3},     {"integer", 4}};
            const auto known = types.find(parts[1]);
            const std::string size = parts[2].matched && parts[2] != "max" ? parts[2].str() : "0";
            const std::string scale = parts[1] == "money" ? "4" : parts[3].matched ? parts[3].str() : "0";
            add(query, "NULL,'dbo'," + quoted(table) + "," + quoted(name) + ",CAST(" +
                           std::to_string(known == types.end() ? -9 : known->second) + " AS smallint)," +
                           quoted(parts[1]) + "," + size + "," + size + ",CAST(" + scale +
                           " AS smallint),10,1,NULL,NULL,0,0,0,1,'YES',0");
        });
        return query.empty() ? "SELECT 1 WHERE 1 = 0" : query;
    }
    std::string tables() {
        std::string query;
        ask("SELECT name,'',0 FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'", {},
            [&](const std::string& name, const std::string&, int) {
                add(query, quoted(name) + " AS TABLE_NAME");
            });
        return query.empty() ? "SELECT N'' AS TABLE_NAME WHERE 1 = 0" : query;
    }
    std::string key(const std::string& table) {
        std::string query;
        each(table, [&](const std::string& name, const std::string&, int place) {
            if (place > 0)
                add(query, "NULL,'dbo'," + quoted(table) + "," + quoted(name) + ",CAST(" +
                               std::to_string(place) + " AS smallint),'PK'");
        });
        return query.empty() ? "SELECT NULL,NULL,NULL,'x',CAST(1 AS smallint),'PK' WHERE 1 = 0" : query;
    }
    static std::string noSpecialColumn() {
        return "SELECT CAST(1 AS smallint),'x',CAST(1 AS smallint),'int',1,1,CAST(0 AS smallint),CAST(1 AS smallint) WHERE 1 = 0";
    }

private:
    static std::string quoted(const std::string& text) {
        return "N'" + base::replaceAll(text, "'", "''") + "'";
    }
    static void add(std::string& query, const std::string& row) {
        query += (query.empty() ? "SELECT " : " UNION ALL SELECT ") + row;
    }
    using Take = std::function<void(const std::string& name, const std::string& type, int place)>;

    void each(const std::string& table, const Take& take) {
        ask("SELECT name,lower(type),pk FROM pragma_table_info(?1)", table, take);
    }
    void ask(const char* query, const std::string& table, const Take& take) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(file_, query, -1, &statement, nullptr);
        sqlite3_bind_text(statement, 1, table.c_str(), -1, SQLITE_TRANSIENT);
        const auto text = [&](int column) {
            return std::string{reinterpret_cast<const char*>(sqlite3_column_text(statement, column))};
        };
        while (sqlite3_step(statement) == SQLITE_ROW)
            take(text(0), text(1), sqlite3_column_int(statement, 2));
        sqlite3_finalize(statement);
    }

    sqlite3* file_ = nullptr;
};

/// One client, from its first message to its end.
class Client {
public:
    Client(int socket, const embedded::Database& database)
        : socket_(socket), connection_(database.connect()), catalogue_(database.file()) {}
    ~Client() { ::close(socket_); }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    void serve(const std::atomic<bool>& ended) {
        std::string message;
        for (std::uint8_t kind = 0; receive(ended, kind, message); message.clear()) {
            TdsMessage reply;
            if (kind == beforeLogin)
                reply.raw(std::string_view{
                    "\x00\x00\x0b\x00\x06\x01\x00\x11\x00\x01\xff\x0f\x00\x00\x00\x00\x00\x02", 18});
            else if (kind == login)
                reply.loginAccepted();
            else if (kind == batch)
                run(reply, textOfBatch(message), afterBatch);
            else if (kind == procedure)
                call(reply, message);
            else
                reply.raw(std::string_view{"\xfd\x20\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00", 13});
            send(reply.bytes());
        }
    }

private:
    bool receiveBytes(const std::atomic<bool>& ended, std::size_t count, std::string& bytes) {
        bytes.resize(count);
        for (std::size_t have = 0; have < count;) {
            pollfd waiting{socket_, POLLIN, 0};
            if (ended) return false;
            constexpr int pollTime = 50;
            if (::poll(&waiting, 1, pollTime) <= 0) continue;
            const ssize_t now = ::recv(socket_, bytes.data() + have, count - have, 0);
            if (now <= 0) return false;
            have += static_cast<std::size_t>(now);
        }
        return true;
    }

    bool receive(const std::atomic<bool>& ended, std::uint8_t& kind, std::string& message) {
        for (;;) {
            std::string head;
            std::string body;
            if (!receiveBytes(ended, headSize, head)) return false;
            const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(head[index]); };
            const std::size_t size = byte(2) * 256U + byte(3);
            if (size < headSize || !receiveBytes(ended, size - headSize, body)) return false;
            kind = byte(0);
            message += body;
            if ((byte(1) & 1U) != 0) return true;
        }
    }

    void send(const std::string& bytes) {
        std::size_t at = 0;
        std::uint8_t number = 0;
        do {
            const std::size_t part = std::min(bytes.size() - at, packetSize - headSize);
            const std::size_t size = part + headSize;
            const bool last = at + part == bytes.size();
            std::string packet{static_cast<char>(answer),
                               static_cast<char>(last ? 1 : 0),
                               static_cast<char>(size / 256),
                               static_cast<char>(size % 256),
                               0,
                               0,
                               static_cast<char>(++number),
                               0};
            packet += bytes.substr(at, part);
            ::send(socket_, packet.data(), packet.size(), MSG_NOSIGNAL);
            at += part;
        } while (at < bytes.size());
    }

    static std::string textOfBatch(const std::string& message) {
        TdsReader reader{message};
        const std::uint64_t heads = reader.number(4);
        reader.raw(heads - 4);
        return reader.text((message.size() - heads) / 2);
    }

    /// @param token that ends the answer
    /// @return whether it succeeded
    bool run(TdsMessage& reply, const std::string& text, std::uint8_t token) {
        static const std::regex catalogueCall{
            "\\s*exec(?:ute)?\\s+.*(sp_\\w+).*@table_name\\s*=\\s*N?'([^']*)'[^]*", std::regex::icase};
        std::smatch called;
        try {
            const bool asks = std::regex_match(text, called, catalogueCall);
            const auto result = connection_->execute(
                asks ? catalogueQuery(called[1], called[2])
                : text.starts_with("SELECT TABLE_NAME FROM INFORMATION_SCHEMA") ? catalogue_.tables()
                                                                                : understood(text));
            std::int64_t count = result.rowsAffected;
            if (result.rows) {
                const TdsTable table{*result.rows, true};
                reply.columns(table);
                reply.rows(table);
                count = static_cast<std::int64_t>(table.rows.size());
            }
            reply.done(token, false, count, token == withinProcedure);
            return true;
        } catch (const base::DatabaseError& error) {
            reply.error(numberOf(error.category()), error.what());
            reply.done(token, true, -1, token == withinProcedure);
            return false;
        }
    }

    std::string catalogueQuery(const std::string& name, std::string table) {
        table = base::replaceAll(base::replaceAll(std::move(table), "\\", ""), "[_]", "_");
        if (name == "sp_columns") return catalogue_.columns(table);
        if (name == "sp_pkeys") return catalogue_.key(table);
        return CatalogueOfFile::noSpecialColumn();
    }

    void call(TdsMessage& reply, const std::string& message) {
        TdsReader reader{message};
        reader.raw(reader.number(4) - 4);
        const std::uint64_t length = reader.number(2);
        std::string name;
        if (length == 0xFFFF) {
            static const std::map<std::uint64_t, std::string> numbers{{10, "sp_executesql"},
                                                                      {11, "sp_prepare"},
                                                                      {12, "sp_execute"},
                                                                      {13, "sp_prepexec"},
                                                                      {15, "sp_unprepare"}};
            const auto known = numbers.find(reader.number(2));
            name = known == numbers.end() ? "?" : known->second;
        } else {
            name = reader.text(length);
        }
        reader.number(2);
        std::vector<TdsReader::Parameter> parameters;
        while (!reader.atEnd())
            parameters.push_back(reader.parameter());
        bool succeeded = true;
        if (name == "sp_executesql") {
            succeeded = run(reply, withParameters(parameters, 0), withinProcedure);
        } else if (name == "sp_prepare") {
            prepared_[++lastHandle_] = parameters.at(2).plain;
            succeeded = describe(reply, parameters.at(2).plain);
            if (succeeded) reply.returnValue(lastHandle_);
        } else if (name == "sp_execute") {
            succeeded =
                run(reply, prepared_[static_cast<std::int32_t>(parameters.at(0).integer)], withinProcedure);
        } else if (name.find("sp_unprepare") == std::string::npos) {
            std::string table;
            for (const TdsReader::Parameter& one : parameters)
                if (one.name == "@table_name") table = one.plain;
            succeeded = run(reply, catalogueQuery(name.substr(name.find("sp_")), table), withinProcedure);
        }
        reply.number(0x79, 1);
        reply.number(succeeded ? 0 : 1, 4);
        reply.done(afterProcedure, !succeeded, -1);
    }

    bool describe(TdsMessage& reply, const std::string& text) {
        try {
            const auto result = connection_->execute(text);
            if (result.rows) reply.columns(TdsTable{*result.rows, false});
            reply.done(withinProcedure, false, -1, true);
            return true;
        } catch (const base::DatabaseError& error) {
            reply.error(numberOf(error.category()), error.what());
            reply.done(withinProcedure, true, -1, true);
            return false;
        }
    }

    /// The statement with its parameters, which have no names but their place, as variables before it.
    static std::string withParameters(const std::vector<TdsReader::Parameter>& parameters,
                                      std::size_t statement) {
        std::string text;
        for (std::size_t index = statement + 2; index < parameters.size(); ++index)
            text += "DECLARE @P" + std::to_string(index - statement - 1) + " " + parameters[index].type +
                    " = " + parameters[index].literal + " ";
        return text + parameters.at(statement).plain;
    }

    int socket_;
    std::unique_ptr<base::Connection> connection_;
    CatalogueOfFile catalogue_;
    std::map<std::int32_t, std::string> prepared_;
    std::int32_t lastHandle_ = 0;
};

} // namespace

TdsServer::TdsServer(std::filesystem::path file, const base::Clock& clock,
                     embedded::Database::Options options)
    : database_(std::move(file), clock, options),
      listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof(address);
    if (::bind(listener_, reinterpret_cast<sockaddr*>(&address), size) != 0 || ::listen(listener_, 64) != 0 ||
        ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size) != 0)
        throw std::runtime_error{"no port for the test's server"};
    port_ = ntohs(address.sin_port);
    thread_ = std::thread{[this] { accept(); }};
}

TdsServer::~TdsServer() {
    ended_ = true;
    thread_.join();
    ::close(listener_);
}

void TdsServer::accept() {
    std::vector<std::thread> clients;
    while (!ended_) {
        pollfd waiting{listener_, POLLIN, 0};
        constexpr int pollTime = 50;
        if (::poll(&waiting, 1, pollTime) <= 0) continue;
        const int socket = ::accept(listener_, nullptr, nullptr);
        if (socket < 0) continue;
        clients.emplace_back([this, socket] {
            try {
                Client{socket, database_}.serve(ended_);
            } catch (const std::exception& error) {
                std::fprintf(stderr, "the test's server: %s\n", error.what());
            }
        });
    }
    for (std::thread& client : clients)
        client.join();
}

} // namespace tellurix::tests
