#include "library/library.h"

#include <filesystem>
#include <stdexcept>

#include "common/peer.h"
#include "common/places.h"
#include "cvdeveloper/application.h"
#include "cvdeveloper/automation/conversions.h"
#include "host/register.h"

namespace cvdeveloper::bench {

namespace {

using App = Ref<Application>;

App attached(const std::string& folder) {
    standalone::register_standalone_host();
    auto app = make_object<Application>();
    app->put_LogPath(folder);
    app->Corvanta_InitConnector(folder, "chef", "");
    if (app->Corvanta_InitType() == INITTYPE_NONE) {
        throw std::runtime_error("no session in " + folder);
    }
    return app;
}

Workload get_detail(const App& app) {
    return {.run = [base = app->oBase(), places = Places()]() mutable {
        keep(base->Det_GetValue("AKT", places.next_activity(), places.next_field_kind()));
    }};
}

Workload set_detail(const App& app) {
    return {.run = [base = app->oBase(), places = Places(), number = 0]() mutable {
        base->Det_SetValue("AKT", places.next_activity(), places.next_field_kind(),
                           "neu " + std::to_string(++number));
    }};
}

Workload add_features(const App& app) {
    std::string list;
    for (int i = 0; i < features; ++i) {
        list.append(i == 0 ? "" : ",").append(field_kind_key(i));
    }
    return {.run = [base = app->oBase(), list] { base->Mkm_Add("AKT", new_key(), list); }};
}

Workload find_rows(const App& app) {
    return {.run = [app, places = Places()]() mutable {
        const RecordSet rs = app->AKT_Find("Projekte_Dsn='" + places.next_project() + "'");
        for (; !rs.at_end(); rs.move_next()) {
            for (const char* field : found_fields) {
                keep(rs.value(field));
            }
        }
    }};
}

Workload copy_project(const App& app) {
    return {.run = [app] {
        const RecordSet originals =
            app->AKT_Find("Projekte_Dsn='" + project_key(1) + "'", "Kennung");
        RecordSet copies = app->AKT_Copy(originals, "", new_key());
        app->AKT_Update(copies);
    }};
}

Workload cross_table(const App& app) {
    return {.run = [base = app->oBase()] {
        const RecordSet rs = base->CV_GetRecordset(cross_table_statement());
        const std::int32_t count = rs.field_count();
        for (; !rs.at_end(); rs.move_next()) {
            for (std::int32_t i = 0; i < count; ++i) {
                keep(rs.value_at(i));
            }
        }
    }};
}

Workload add_attachment(const App& app, const std::string& folder) {
    const auto key = std::make_shared<std::string>();
    return {.run = [=] { *key = app->AKT_Blob_Add(activity_key(1), folder + "/content.bin"); },
            .clean = [=] { app->BLOB_Del(*key, ""); }};
}

Workload read_attachment(const App& app, const std::string& folder) {
    app->AKT_Blob_Add(activity_key(1), folder + "/content.bin");
    return {
        .run = [=] { app->BLOB_SaveAs(app->BLOB_GetInfo(activity_key(1)), folder, "again.bin"); },
        .clean = [=] { std::filesystem::remove(folder + "/again.bin"); }};
}

std::size_t bytes_of(const Variant& value) {
    if (const auto* text = value.get_if<std::string>()) {
        return text->size();
    }
    return value.is<Null>() ? 0 : sizeof(double);
}

// What a result is allowed: twice its values' bytes, and 16 bytes a field.
std::size_t allowed_for(const RecordSet& rs) {
    std::size_t values = 0;
    std::size_t fields = 0;
    const std::int32_t count = rs.field_count();
    for (rs.move_first(); !rs.at_end(); rs.move_next()) {
        for (std::int32_t i = 0; i < count; ++i, ++fields) {
            values += bytes_of(rs.value_at(i));
        }
    }
    return 2 * values + 16 * fields;
}

Workload large_result(const App& app) {
    return {.run = [app] { keep(app->AKT_Find("")); },
            .allowed_memory = [app] { return allowed_for(app->AKT_Find("")); }};
}

}  // namespace

std::string cross_table_statement() {
    static const auto base = make_object<Application>()->oBase();
    return base->Sql_CrossTable("AD", "Kennung|NAME", "Feld0|Feld1|Feld2|Feld3|Feld4", "",
                                "t1.Kennung");
}

Workload library_workload(const Order& order) {
    const App app = attached(order.folder);
    const std::string& name = order.workload;
    if (name == "create_activity") {
        return {.run = [app] { keep(app->AKT_Create("", "Anruf")); }};
    }
    if (name == "get_detail") {
        return get_detail(app);
    }
    if (name == "set_detail") {
        return set_detail(app);
    }
    if (name == "add_features") {
        return add_features(app);
    }
    if (name == "find_rows") {
        return find_rows(app);
    }
    if (name == "copy_project") {
        return copy_project(app);
    }
    if (name == "cross_table") {
        return cross_table(app);
    }
    if (name == "add_attachment") {
        return add_attachment(app, order.folder);
    }
    if (name == "read_attachment") {
        return read_attachment(app, order.folder);
    }
    if (name == "large_result") {
        return large_result(app);
    }
    throw std::runtime_error("no workload " + name);
}

}  // namespace cvdeveloper::bench
