#include "by_hand/by_hand.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <stdexcept>

#include "by_hand/copy.h"
#include "by_hand/create.h"
#include "by_hand/database.h"
#include "common/places.h"
#include "library/library.h"

namespace cvdeveloper::bench {

namespace {

using Connection = std::shared_ptr<Database>;

Workload create_activity(const Connection& database, const std::string& folder) {
    const auto peer = std::make_shared<CreateByHand>(*database, folder);
    return {.run = [database, peer] { keep(peer->create("Anruf")); }};
}

Workload get_detail(const Connection& database) {
    const auto query = std::make_shared<Query>(database->query("detail_value"));
    return {.run = [database, query, places = Places()]() mutable {
        const std::string record = places.next_activity();
        const std::string kind = places.next_field_kind();
        query->bind(std::string_view(record), std::string_view(kind)).step();
        keep(query->text(0));
        query->run();
    }};
}

Workload set_detail(const Connection& database) {
    const auto read = std::make_shared<Query>(database->query("detail_row"));
    const auto update = std::make_shared<Query>(database->query("update_detail"));
    return {.run = [=, places = Places(), number = 0]() mutable {
        const std::string record = places.next_activity();
        const std::string kind = places.next_field_kind();
        read->bind(std::string_view(record), std::string_view(kind)).step();
        const std::string key = read->text(0);
        const std::int64_t version = read->number(1);
        read->run();
        const std::string value = "neu " + std::to_string(++number);
        update->bind(std::string_view(value), version + 1, std::string_view(key), version).run();
        keep(database);
    }};
}

Workload add_features(const Connection& database, const std::string& folder) {
    const auto links = std::make_shared<LinksByHand>(*database, folder);
    return {.run = [database, links] {
        const std::string record = new_key();
        for (int i = 0; i < features; ++i) {
            links->add(record, field_kind_key(i));
        }
    }};
}

Workload find_rows(const Connection& database) {
    const auto query = std::make_shared<Query>(database->query("find"));
    std::array<int, found_fields.size()> columns{};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        columns[i] = query->find(found_fields[i]);
    }
    return {.run = [database, query, columns, places = Places()]() mutable {
        const std::string project = places.next_project();
        query->bind(std::string_view(project));
        while (query->step()) {
            for (const int column : columns) {
                keep(query->value(column));
            }
        }
        query->finish();
    }};
}

Workload copy_project(const Connection& database, const std::string& folder) {
    const auto peer = std::make_shared<CopyByHand>(*database, folder);
    return {.run = [database, peer] { peer->copy(project_key(1), new_key()); }};
}

Workload cross_table(const Connection& database) {
    const auto query = std::make_shared<Query>(database->handle(), cross_table_statement());
    return {.run = [database, query] {
        const int columns = query->columns();
        query->bind();
        while (query->step()) {
            for (int i = 0; i < columns; ++i) {
                keep(query->value(i));
            }
        }
        query->finish();
    }};
}

// Content is copied by cp, and where the side says so synced as the library does.
Workload copy_file(const Order& order) {
    const std::string target = order.folder + "/copy.bin";
    std::string command = "cp '" + order.folder + "/content.bin' '" + target + "'";
    if (order.side == "cp_and_sync") {
        command += " && sync '" + target + "'";
    }
    return {.run =
                [command] {
                    if (std::system(command.c_str()) != 0) {
                        throw std::runtime_error(command);
                    }
                },
            .clean = [target] { std::filesystem::remove(target); }};
}

}  // namespace

Workload by_hand_workload(const Order& order) {
    if (order.side.starts_with("cp")) {
        return copy_file(order);
    }
    const auto database = std::make_shared<Database>(order.folder, order.full_sync);
    const std::string& name = order.workload;
    if (name == "create_activity") {
        return create_activity(database, order.folder);
    }
    if (name == "get_detail") {
        return get_detail(database);
    }
    if (name == "set_detail") {
        return set_detail(database);
    }
    if (name == "add_features") {
        return add_features(database, order.folder);
    }
    if (name == "find_rows") {
        return find_rows(database);
    }
    if (name == "copy_project") {
        return copy_project(database, order.folder);
    }
    if (name == "cross_table") {
        return cross_table(database);
    }
    throw std::runtime_error("no workload " + name);
}

}  // namespace cvdeveloper::bench
