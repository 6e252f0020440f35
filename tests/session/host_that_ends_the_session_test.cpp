// A host may end the session it is being called by. Whatever the call has got of it must outlive
// the call, and nothing must outlive it for longer.
#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "cvdeveloper/application.h"
#include "cvdeveloper/base.h"
#include "support/expect_error.h"

namespace cvdeveloper {
namespace {

// Host and services in one kind of object, called by the members' names; the living ones are known.
class Part final : public Object {
  public:
    using Members = std::function<Variant(Part&, std::string_view member)>;

    Part(std::set<const Part*>& living, Members members)
        : living_(living), members_(std::move(members)) {
        living_.insert(this);
    }
    ~Part() override { living_.erase(this); }
    [[nodiscard]] std::string_view class_name() const noexcept override { return "Part"; }
    Variant invoke(std::string_view member, InvokeKind, Arguments) override {
        return members_(*this, member);
    }

  private:
    std::set<const Part*>& living_;
    Members members_;
};

class AHostThatEndsTheSession : public ::testing::Test {
  protected:
    // Ends the session when the member is called.
    void attach(std::string_view ending_member) {
        const auto members = [this, ending_member](Part& part, std::string_view member) -> Variant {
            if (member == ending_member) {
                app->call("Corvanta_Done");
                EXPECT_TRUE(living.contains(&part)) << "gone while it is being called";
                app->call("Corvanta_Done");
                EXPECT_TRUE(living.contains(&part)) << "gone while it is being called";
            }
            return answer(member);
        };
        app->call("Corvanta_SetApplication", ObjectRef(make_object<Part>(living, members)));
    }
    Variant answer(std::string_view member) {
        if (member == "IsLoggedIn") {
            return true;
        }
        if (member == "Util" || member == "Blob") {
            return ObjectRef(make_object<Part>(
                living, [this](Part&, std::string_view name) { return answer(name); }));
        }
        if (member == "EOF") {
            return true;
        }
        if (member == "DbIni") {
            return ObjectRef();
        }
        if (member == "GetRecordset") {
            return ObjectRef(make_object<Part>(
                living, [this](Part&, std::string_view name) { return answer(name); }));
        }
        return "x";
    }
    void expect_ended() {
        EXPECT_TRUE(living.empty());
        EXPECT_EQ(app->Corvanta_InitType(), INITTYPE_NONE);
        EXPECT_EQ(app->oUtil(), nullptr);
        expect_error_number(601, [&] { app->call("AKT_Create"); });
    }

    std::set<const Part*> living;
    Ref<Application> app = make_object<Application>();
};

TEST_F(AHostThatEndsTheSession, LivesUntilItsRecordSetIsThere) {
    attach("GetRecordset");
    EXPECT_EQ(living.size(), 3U);
    app->call("AKT_FindByDSN", "K1");
    expect_ended();
}

TEST_F(AHostThatEndsTheSession, LivesUntilTheOperationHasFailed) {
    attach("GetRecordset");
    expect_error_number(601, [&] { app->call("AKT_Create"); });
    expect_ended();
}

TEST_F(AHostThatEndsTheSession, LivesUntilADirectCallHasReturned) {
    attach("GetRecordset");
    app->AKT_FindByDSN("K1");
    expect_ended();
}

TEST_F(AHostThatEndsTheSession, IsNotAttachedWhereItDoesSoWhenAskedForItsObjects) {
    for (const char* member : {"IsLoggedIn", "Util", "Blob", "Folder"}) {
        SCOPED_TRACE(member);
        attach(member);
        if (std::string_view(member) == "IsLoggedIn") {
            EXPECT_EQ(app->Corvanta_InitType(), INITTYPE_APPLICATION);  // it was asked before
            app->call("Corvanta_Done");
        }
        expect_ended();
    }
}

TEST_F(AHostThatEndsTheSession, IsReleasedAtOnceWhereNobodyCallsIt) {
    attach("");
    EXPECT_EQ(living.size(), 3U);
    app->Corvanta_Done();
    expect_ended();
}

}  // namespace
}  // namespace cvdeveloper
