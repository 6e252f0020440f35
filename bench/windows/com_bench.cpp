// What calls of the registered automation server cost: bound early, late by id, late by name. Each
// is measured against a hand-written object with the same members, in turns.
#include <windows.h>

#include <oleauto.h>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "client.h"
#include "cvdeveloper_interfaces.h"

namespace {

// Many short rounds: the least disturbed ones count.
constexpr int rounds = 101;
constexpr int calls = 50'000;

double now() {
    LARGE_INTEGER ticks;
    LARGE_INTEGER frequency;
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(ticks.QuadPart) * 1e9 / static_cast<double>(frequency.QuadPart);
}

template <class Call>
double nanoseconds(const Call& call) {
    const double begin = now();
    for (int i = 0; i < calls; ++i) {
        call();
    }
    return (now() - begin) / calls;
}

double lower_quartile(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 4];
}

// The least that an object with one member can do.
class HandWritten : public IDispatch {
  public:
    HandWritten() = default;
    HandWritten(const HandWritten&) = delete;
    HandWritten& operator=(const HandWritten&) = delete;
    virtual ~HandWritten() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                            DISPID* ids) override {
        ids[0] = 4;
        return _wcsicmp(names[0], L"Count") == 0 ? S_OK : DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                     EXCEPINFO*, UINT*) override {
        if (id != 4) {
            return DISP_E_MEMBERNOTFOUND;
        }
        V_VT(result) = VT_I2;
        return get_Count(&V_I2(result));
    }
    virtual HRESULT STDMETHODCALLTYPE get_Count(short* result) {
        *result = count_;
        return S_OK;
    }

  private:
    short count_ = 3;
};

void late_call(IDispatch* object, DISPID id) {
    VARIANT result;
    VariantInit(&result);
    DISPPARAMS none{};
    object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &result, nullptr,
                   nullptr);
}

void named_call(IDispatch* object) {
    const wchar_t* name = L"Count";
    DISPID id = 0;
    object->GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(&name), 1, LOCALE_USER_DEFAULT, &id);
    late_call(object, id);
}

bool report(const char* what, double limit, std::vector<double> ours, std::vector<double> theirs) {
    const double mine = lower_quartile(std::move(ours));
    const double peer = lower_quartile(std::move(theirs));
    std::printf("%-34s %8.1f ns  hand-written %6.1f ns  ratio %5.1f  limit %4.0f ns %s\n", what,
                mine, peer, mine / peer, limit, mine <= limit ? "" : "EXCEEDED");
    return mine <= limit;
}

}  // namespace

int main() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    auto* list = create<_clsPhoneList>(L"CVDeveloper.clsPhoneList");
    auto* app = create<_Application>(L"CVDeveloper.Application");
    HandWritten plain;
    HandWritten* volatile hidden = &plain;  // so that the calls stay calls
    DISPID id = 0;
    const wchar_t* name = L"Count";
    list->GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(&name), 1, LOCALE_USER_DEFAULT, &id);
    short count = 0;
    enumInitType kind = INITTYPE_NONE;

    std::vector<double> early, session, by_id, by_name, peer_early, peer_id, peer_name;
    for (int round = 0; round < rounds; ++round) {
        early.push_back(nanoseconds([&] { list->get_Count(&count); }));
        peer_early.push_back(nanoseconds([&] { hidden->get_Count(&count); }));
        session.push_back(nanoseconds([&] { app->get_Corvanta_InitType(&kind); }));
        by_id.push_back(nanoseconds([&] { late_call(list, id); }));
        peer_id.push_back(nanoseconds([&] { late_call(hidden, 4); }));
        by_name.push_back(nanoseconds([&] { named_call(list); }));
        peer_name.push_back(nanoseconds([&] { named_call(hidden); }));
    }
    bool good = report("early-bound call", 5, early, peer_early);
    good &= report("early-bound call within a session", 30, session, peer_early);
    good &= report("late-bound call by id", 60, by_id, peer_id);
    good &= report("late-bound call by name", 110, by_name, peer_name);
    app->Release();
    list->Release();
    CoUninitialize();
    return good ? 0 : 1;
}
