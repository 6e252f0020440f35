// A client that is bound to the interfaces of the type library, and calls through the vtable.
// Prints what it sees, a line each.
#include <windows.h>

#include <oleauto.h>

#include <fcntl.h>
#include <io.h>
#include <cstdio>
#include <string>

#include "client.h"
#include "cvdeveloper_interfaces.h"

namespace {

class Text {
  public:
    Text() = default;
    explicit Text(const wchar_t* text) : text_(SysAllocString(text)) {}
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    ~Text() { SysFreeString(text_); }
    operator BSTR() const { return text_; }
    BSTR* address() { return &text_; }

  private:
    BSTR text_ = nullptr;
};

void say(const char* what, const std::string& value) {
    std::printf("%s: %s\n", what, value.c_str());
}

std::string status_text(HRESULT status) {
    char text[16];
    std::snprintf(text, sizeof(text), "%08lX", static_cast<unsigned long>(status));
    return text;
}

// Status, source and description of a failed call, as "On Error" callers see them.
std::string error_text(IUnknown* object, REFIID interface_id, HRESULT status) {
    std::string text = status_text(status);
    ISupportErrorInfo* supports = nullptr;
    if (FAILED(
            object->QueryInterface(IID_ISupportErrorInfo, reinterpret_cast<void**>(&supports)))) {
        return text + " no information";
    }
    const bool supported = supports->InterfaceSupportsErrorInfo(interface_id) == S_OK;
    supports->Release();
    IErrorInfo* information = nullptr;
    if (!supported || GetErrorInfo(0, &information) != S_OK) {
        return text + " no information";
    }
    Text source;
    Text description;
    information->GetSource(source.address());
    information->GetDescription(description.address());
    information->Release();
    return text + "|" + narrow(source) + "|" + narrow(description);
}

void phone_list() {
    auto* list = create<_clsPhoneList>(L"CVDeveloper.clsPhoneList");
    list->Add(Text(L"0201 1"), Text(L""), Text(L"Büro"));
    short count = 0;
    const HRESULT counted = list->get_Count(&count);
    say("Count", status_text(counted) + " " + std::to_string(count));
    list->put_Phone2(1, Text(L"0171 2"));
    Text text;
    list->get_Phone2(1, text.address());
    say("Phone2", narrow(text));
    Text all;
    list->get_AsString(all.address());
    say("AsString", narrow(all));

    VARIANT parts[3];
    for (VARIANT& part : parts) {
        VariantInit(&part);
    }
    list->GetItem(1, &parts[0], &parts[1], &parts[2]);
    say("GetItem", narrow(V_BSTR(&parts[0])) + "/" + narrow(V_BSTR(&parts[1])) + "/" +
                       narrow(V_BSTR(&parts[2])));
    for (VARIANT& part : parts) {
        VariantClear(&part);
    }
    VARIANT removed;
    VariantInit(&removed);
    say("Remove", error_text(list, __uuidof(_clsPhoneList), list->Remove(7, &removed)));
    say("no address for a result", status_text(list->get_Count(nullptr)));
    list->Release();
}

void application() {
    auto* app = create<_Application>(L"CVDeveloper.Application.1");
    Text version;
    app->GetVersion(version.address());
    say("GetVersion", narrow(version));
    enumInitType kind = INITTYPE_CONNECTOR;
    app->get_Corvanta_InitType(&kind);
    say("Corvanta_InitType", std::to_string(kind));
    VARIANT_BOOL flag = VARIANT_FALSE;
    app->put_FlagSqlLog(VARIANT_TRUE);
    app->get_FlagSqlLog(&flag);
    say("FlagSqlLog", std::to_string(flag));
    IDispatch* rows = nullptr;
    say("AKT_Find",
        error_text(app, __uuidof(_Application), app->AKT_Find(Text(L"1=1"), Text(L""), &rows)));
    say("OBJ_Find",
        error_text(app, __uuidof(_Application), app->OBJ_Find(Text(L"1=1"), Text(L""), &rows)));

    _clsTools* tools = nullptr;
    _clsTools* again = nullptr;
    app->get_oTools(&tools);
    app->get_oTools(&again);
    say("oTools twice", tools == again ? "the same object" : "two objects");
    again->Release();
    VARIANT buffer;
    VariantInit(&buffer);
    V_VT(&buffer) = VT_BSTR;
    V_BSTR(&buffer) = SysAllocString(L"a|b");
    Text first;
    tools->StrList_DeleteFirst(&buffer, Text(L"|"), first.address());
    say("StrList_DeleteFirst", narrow(first) + " leaves " + narrow(V_BSTR(&buffer)));
    VariantClear(&buffer);
    VARIANT number;
    VariantInit(&number);
    VARIANT_BOOL yes = VARIANT_TRUE;
    VARIANT_BOOL no = VARIANT_FALSE;
    VARIANT_BOOL working_day = VARIANT_FALSE;
    // 2026-11-14 is a Saturday.
    tools->IsArbeitstag(46340, &no, &yes, &no, &working_day);
    say("IsArbeitstag", std::to_string(working_day));
    say("no address for an argument",
        status_text(tools->IsArbeitstag(46340, nullptr, &yes, &no, &working_day)));
    IUnknown* from_tools = nullptr;
    IUnknown* identity = nullptr;
    tools->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&from_tools));
    IDispatch* dispatch = nullptr;
    tools->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch));
    dispatch->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&identity));
    say("identity", identity == from_tools ? "one" : "two");
    identity->Release();
    from_tools->Release();
    dispatch->Release();
    tools->Release();
    say("last release", std::to_string(app->Release()));
}

}  // namespace

int main() {
    _setmode(_fileno(stdout), _O_BINARY);
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    phone_list();
    application();
    CoFreeUnusedLibraries();
    CoUninitialize();
    return 0;
}
