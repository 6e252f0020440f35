#include <array>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/host/bound.h"

// Host objects that are not written in C++, called by their members' names. Each class asks for
// exactly the members that its host class has, at the moment they are needed, and for nothing else.
namespace cvdeveloper::host {

namespace {

constexpr std::uint32_t first_by_reference = 1;
constexpr std::uint32_t first_three_by_reference = 7;

class LateUtil final : public Util {
  public:
    explicit LateUtil(Object& object) : object_(object) {}

    std::string SqlUid(std::string_view key) override {
        return to_text(object_.call("SqlUid", key));
    }
    Variant SqlStrNull(std::string_view text) override { return object_.call("SqlStrNull", text); }
    std::string NewGUID() override { return to_text(object_.call("NewGUID")); }
    void Kill(std::string_view path) override { object_.call("Kill", path); }
    std::string GetFileExtender(std::string_view path) override {
        return to_text(object_.call("GetFileExtender", path));
    }
    std::string GeneralDate(Date date) override {
        return to_text(object_.call("GeneralDate", date));
    }
    Variant k(Variant value) override { return object_.call("k", std::move(value)); }
    Variant d(Variant value) override { return object_.call("d", std::move(value)); }
    Variant b(Variant value) override { return object_.call("b", std::move(value)); }

  private:
    Object& object_;
};

class LateBlob final : public Blob {
  public:
    explicit LateBlob(Object& object) : object_(object) {}

    std::string SaveBlobFile(std::string_view path, std::string_view link_key,
                             std::int32_t kind) override {
        return to_text(object_.call("SaveBlobFile", path, link_key, kind));
    }
    std::string SaveBlobFile(std::string_view path, std::string_view link_key, std::int32_t kind,
                             std::string_view blob_key, bool mark_send) override {
        return to_text(object_.call("SaveBlobFile", path, link_key, kind, blob_key, mark_send));
    }
    void DeleteBlobFile(std::string_view blob_key, std::string_view link_key, std::int32_t kind,
                        std::string_view info) override {
        object_.call("DeleteBlobFile", blob_key, link_key, kind, info);
    }
    cvdeveloper::RecordSet GetBlobInfos(std::string_view link_key) override {
        return cvdeveloper::RecordSet(to_object(object_.call("GetBlobInfos", link_key)));
    }
    std::string GetSourceFilename(std::string_view blob_key) override {
        return to_text(object_.call("GetSourceFilename", blob_key));
    }
    std::string OpenBlobFile(std::string_view blob_key, std::string_view link_key,
                             std::int32_t kind) override {
        return to_text(object_.call("OpenBlobFile", blob_key, link_key, kind));
    }

  private:
    Object& object_;
};

class LatePane final : public Pane {
  public:
    explicit LatePane(Object& object) : object_(object) {}

    void Find(std::string_view where) override { object_.call("Find", where); }
    void FindDsn(std::string_view key) override { object_.call("FindDsn", key); }
    void Show() override { object_.call("Show"); }

  private:
    Object& object_;
};

class LateStandardUtil final : public StandardUtil {
  public:
    explicit LateStandardUtil(Object& object) : object_(object) {}

    std::string GetTempPath() override { return to_text(object_.call("GetTempPath")); }
    void CutRight(std::string& text, std::string_view end) override {
        std::array<Variant, 2> arguments{text, end};
        object_.invoke("CutRight", InvokeKind::GetOrCall,
                       {.values = arguments, .by_reference = first_by_reference});
        text = to_text(std::move(arguments[0]));
    }

  private:
    Object& object_;
};

class LateLegalHolidays final : public LegalHolidays {
  public:
    explicit LateLegalHolidays(Object& object) : object_(object) {}

    void Eintragen(std::int32_t year) override { object_.call("Eintragen", year); }
    std::int32_t Count() override { return to_int32(object_.get("Count")); }
    Date Day(std::int32_t index) override { return to_date(object_.call("Day", index)); }
    std::string Description(std::int32_t index) override {
        return to_text(object_.call("Description", index));
    }

  private:
    Object& object_;
};

class LateField final : public Field {
  public:
    explicit LateField(Object& object) : object_(object) {}

    std::int32_t type() override { return to_int32(object_.get("Type")); }
    Variant value() override { return object_.get("Value"); }
    Variant get_chunk(std::int32_t size) override { return object_.call("GetChunk", size); }

  private:
    Object& object_;
};

// The members that both forms of session have.
template <class Base>
class LateSession : public Base {
  public:
    using Password = Session::Password;

    explicit LateSession(Object& object) : object_(object) {}

    ObjectRef Util() override { return to_object(object_.get("Util")); }
    ObjectRef Blob() override { return to_object(object_.get("Blob")); }
    ObjectRef DbIni() override { return to_object(object_.get("DbIni")); }
    cvdeveloper::RecordSet GetRecordset(std::string_view sql, Password password) override {
        return cvdeveloper::RecordSet(to_object(password
                                                    ? object_.call("GetRecordset", sql, *password)
                                                    : object_.call("GetRecordset", sql)));
    }
    void UpdateRecordset(cvdeveloper::RecordSet& rs, Password password) override {
        std::array<Variant, 2> values{rs, password ? Variant(*password) : Variant()};
        object_.invoke("UpdateRecordset", InvokeKind::GetOrCall,
                       {.values = std::span(values).first(password ? 2 : 1),
                        .by_reference = first_by_reference});
        take_back(rs, values[0]);
    }
    cvdeveloper::RecordSet CurrentUserRS() override {
        return cvdeveloper::RecordSet(to_object(object_.get("CurrentUserRS")));
    }
    cvdeveloper::RecordSet STDRS() override {
        return cvdeveloper::RecordSet(to_object(object_.get("STDRS")));
    }
    std::string ParseAndFill(cvdeveloper::RecordSet& rs, std::int16_t type, bool& show) override {
        std::array<Variant, 3> values{rs, type, show};
        Variant result =
            object_.invoke("ParseAndFill", InvokeKind::GetOrCall,
                           {.values = values, .by_reference = first_three_by_reference});
        take_back(rs, values[0]);
        show = to_boolean(values[2]);
        return to_text(std::move(result));
    }

  protected:
    Object& object() const { return object_; }

  private:
    static void take_back(cvdeveloper::RecordSet& rs, const Variant& value) {
        if (ObjectRef left = to_object(value); left != rs.object()) {
            rs = cvdeveloper::RecordSet(std::move(left));
        }
    }

    Object& object_;
};

class LateApplication final : public LateSession<Application> {
  public:
    using LateSession::LateSession;

    bool IsLoggedIn() override { return to_boolean(object().get("IsLoggedIn")); }
    std::string Folder() override { return to_text(object().get("Folder")); }
    std::int32_t VersionBuild() override { return to_int32(object().get("VersionBuild")); }
    ObjectRef Panes(std::string_view form) override {
        return to_object(object().call("Panes", form));
    }
    std::string Get_Platzhalter(const cvdeveloper::RecordSet& rs, std::string_view name,
                                std::string_view sql) override {
        return to_text(object().call("Get_Platzhalter", Variant(rs), name, sql));
    }
};

class LateConnector final : public LateSession<Connector> {
  public:
    using LateSession::LateSession;

    void Logon(std::string_view path, std::string_view user, std::string_view password) override {
        object().call("Logon", path, user, password);
    }
    ObjectRef Progress() override { return to_object(object().get("Progress")); }
};

}  // namespace

template <>
std::unique_ptr<Util> late_bound(Object& object) {
    return std::make_unique<LateUtil>(object);
}
template <>
std::unique_ptr<Blob> late_bound(Object& object) {
    return std::make_unique<LateBlob>(object);
}
template <>
std::unique_ptr<Pane> late_bound(Object& object) {
    return std::make_unique<LatePane>(object);
}
template <>
std::unique_ptr<StandardUtil> late_bound(Object& object) {
    return std::make_unique<LateStandardUtil>(object);
}
template <>
std::unique_ptr<LegalHolidays> late_bound(Object& object) {
    return std::make_unique<LateLegalHolidays>(object);
}
template <>
std::unique_ptr<Field> late_bound(Object& object) {
    return std::make_unique<LateField>(object);
}
template <>
std::unique_ptr<Application> late_bound(Object& object) {
    return std::make_unique<LateApplication>(object);
}
template <>
std::unique_ptr<Connector> late_bound(Object& object) {
    return std::make_unique<LateConnector>(object);
}

}  // namespace cvdeveloper::host
