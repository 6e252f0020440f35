#pragma once

#include <string>
#include <vector>

#include "cvdeveloper/automation/runtime_errors.h"
#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// A host that answers what the tools ask and writes down the questions.
class FakeUtil final : public Object, public host::Util {
  public:
    Variant invoke(std::string_view member, InvokeKind, Arguments) override {
        raise(RuntimeError::NoSuchMember, member);
    }
    [[nodiscard]] std::string_view class_name() const noexcept override { return "FakeUtil"; }
    std::string SqlUid(std::string_view key) override { return std::string(key); }
    Variant SqlStrNull(std::string_view text) override { return text; }
    std::string NewGUID() override { return "key"; }
    void Kill(std::string_view) override {}
    std::string GetFileExtender(std::string_view) override { return {}; }
    std::string GeneralDate(Date) override { return general_date; }
    Variant k(Variant value) override { return value; }
    Variant d(Variant value) override { return value; }
    Variant b(Variant value) override { return value; }

    std::string general_date = "15.11.2026 11:25:39";
};

class FakeRecordSet final : public Object, public host::RecordSet {
  public:
    Variant invoke(std::string_view member, InvokeKind, Arguments) override {
        raise(RuntimeError::NoSuchMember, member);
    }
    [[nodiscard]] std::string_view class_name() const noexcept override { return "FakeRecordSet"; }
    bool at_end() override { return false; }
    void move_first() override {}
    void move_next() override {}
    void add_new() override {}
    void remove() override {}
    std::int32_t field_count() override { return 1; }
    std::string field_name(std::int32_t) override { return "Währung"; }
    Variant value(std::string_view name) override {
        asked.emplace_back(name);
        return content;
    }
    Variant value_at(std::int32_t) override { return content; }
    void set_value(std::string_view, Variant value) override { content = std::move(value); }

    Variant content;
    std::vector<std::string> asked;
};

class FakeApplication final : public Object, public host::Application {
  public:
    Variant invoke(std::string_view member, InvokeKind, Arguments) override {
        raise(RuntimeError::NoSuchMember, member);
    }
    [[nodiscard]] std::string_view class_name() const noexcept override {
        return "FakeApplication";
    }
    ObjectRef Util() override { return util; }
    ObjectRef Blob() override { return nullptr; }
    ObjectRef DbIni() override { return nullptr; }
    RecordSet GetRecordset(std::string_view sql, Password) override {
        asked.emplace_back(sql);
        return RecordSet(rows);
    }
    void UpdateRecordset(RecordSet&, Password) override {}
    RecordSet CurrentUserRS() override { return {}; }
    RecordSet STDRS() override { return RecordSet(rows); }
    std::string ParseAndFill(RecordSet&, std::int16_t, bool&) override { return {}; }
    bool IsLoggedIn() override { return true; }
    std::string Folder() override { return {}; }
    std::int32_t VersionBuild() override { return build; }
    ObjectRef Panes(std::string_view) override { return nullptr; }
    std::string Get_Platzhalter(const RecordSet& rs, std::string_view name,
                                std::string_view sql) override {
        asked.push_back(std::string(name) + "|" + std::string(sql) + (rs ? "|rs" : "|"));
        return placeholder;
    }

    Ref<FakeUtil> util = make_object<FakeUtil>();
    Ref<FakeRecordSet> rows = make_object<FakeRecordSet>();
    std::int32_t build = 133;
    std::string placeholder;
    std::vector<std::string> asked;
};

inline Ref<Session> session_with(const Ref<FakeApplication>& application) {
    auto session = make_object<Session>();
    session->keep_application(host::Bound<host::Application>(ObjectRef(application)));
    session->keep_util(application->Util());
    session->attach(INITTYPE_APPLICATION);
    return session;
}

}  // namespace cvdeveloper
