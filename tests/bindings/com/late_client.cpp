// A late-bound client that does what no script can: named arguments, and calls that are wrong in
// themselves. Prints what comes back, a line each.
#include <windows.h>

#include <oleauto.h>

#include <fcntl.h>
#include <io.h>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <vector>

#include "client.h"

namespace {

VARIANT number(double value) {
    VARIANT made;
    VariantInit(&made);
    V_VT(&made) = VT_R8;
    V_R8(&made) = value;
    return made;
}

VARIANT text(const wchar_t* value) {
    VARIANT made;
    VariantInit(&made);
    V_VT(&made) = VT_BSTR;
    V_BSTR(&made) = SysAllocString(value);
    return made;
}

VARIANT no_object() {
    VARIANT made;
    VariantInit(&made);
    V_VT(&made) = VT_DISPATCH;
    V_DISPATCH(&made) = nullptr;
    return made;
}

VARIANT array_of_texts() {
    VARIANT made;
    VariantInit(&made);
    V_ARRAY(&made) = SafeArrayCreateVector(VT_BSTR, 0, 2);
    V_VT(&made) = VT_ARRAY | VT_BSTR;
    return made;
}

std::string hex(HRESULT status) {
    char buffer[16];
    std::snprintf(buffer, sizeof(buffer), "%08lX", static_cast<unsigned long>(status));
    return buffer;
}

// Calls with the first names.size() - 1 of the arguments by name: names begins with the member's.
std::string call(IDispatch* object, std::vector<const wchar_t*> names,
                 std::vector<VARIANT> arguments, WORD flags = DISPATCH_METHOD) {
    std::vector<DISPID> ids(names.size());
    HRESULT status =
        object->GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(names.data()),
                              static_cast<UINT>(names.size()), LOCALE_USER_DEFAULT, ids.data());
    if (FAILED(status)) {
        return "no such name " + hex(status);
    }
    DISPPARAMS parameters{arguments.data(), ids.data() + 1, static_cast<UINT>(arguments.size()),
                          static_cast<UINT>(names.size() - 1)};
    DISPID put = DISPID_PROPERTYPUT;
    if (flags == DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &put;
        parameters.cNamedArgs = 1;
    }
    VARIANT result;
    VariantInit(&result);
    EXCEPINFO information{};
    status = object->Invoke(ids[0], IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &result,
                            &information, nullptr);
    std::string said;
    if (status == DISP_E_EXCEPTION) {
        said = hex(information.scode) + "|" + narrow(information.bstrSource) + "|" +
               narrow(information.bstrDescription);
        SysFreeString(information.bstrSource);
        SysFreeString(information.bstrDescription);
    } else if (FAILED(status)) {
        said = hex(status);
    } else if (V_VT(&result) == VT_BSTR) {
        said = narrow(V_BSTR(&result));
    } else {
        said = "type " + std::to_string(V_VT(&result));
    }
    VariantClear(&result);
    for (VARIANT& argument : arguments) {
        VariantClear(&argument);
    }
    return said;
}

void say(const char* what, const std::string& value) {
    std::printf("%s: %s\n", what, value.c_str());
}

}  // namespace

int main() {
    _setmode(_fileno(stdout), _O_BINARY);
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    IDispatch* tools = create<IDispatch>(L"CVDeveloper.clsTools");
    IDispatch* app = create<IDispatch>(L"CVDeveloper.Application");
    IDispatch* phones = create<IDispatch>(L"CVDeveloper.clsPhoneList");

    // Named arguments stand first in the list, positional ones behind them.
    say("one by name",
        call(tools, {L"FormatNumber", L"NumDigitsAfterDecimal"}, {number(1), number(1234.567)}));
    say("all by name, in any case",
        call(tools, {L"formatnumber", L"GROUPDIGITS", L"dblNumber"}, {number(0), number(1234.5)}));
    say("unknown argument", call(tools, {L"FormatNumber", L"Digits"}, {number(1), number(2)}));
    say("given twice", call(tools, {L"FormatNumber", L"dblNumber"}, {number(1), number(2)}));
    say("missing argument", call(tools, {L"FormatNumber", L"NumDigitsAfterDecimal"}, {number(1)}));
    say("too many arguments", call(app, {L"GetVersion"}, {number(1)}));
    say("unknown member", call(app, {L"AKT_Creat"}, {}));
    say("a name with an umlaut", call(app, {L"Größe"}, {}));
    say("text for a number", call(tools, {L"FormatNumber"}, {text(L"keine Zahl")}));
    say("number out of range",
        call(tools, {L"FormatNumber", L"NumDigitsAfterDecimal"}, {number(1e20), number(1)}));
    say("array for a text", call(phones, {L"Add"}, {text(L""), text(L""), array_of_texts()}));
    say("no object for a record set", call(app, {L"AKT_Delete"}, {no_object()}));
    say("a number for an object", call(app, {L"AKT_Delete"}, {number(1)}));
    say("writing a method", call(app, {L"GetVersion"}, {number(1)}, DISPATCH_PROPERTYPUT));
    say("writing what is only read", call(phones, {L"Count"}, {number(1)}, DISPATCH_PROPERTYPUT));

    VARIANT result;
    VariantInit(&result);
    DISPPARAMS none{};
    say("unknown id", hex(app->Invoke(99999, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none,
                                      &result, nullptr, nullptr)));
    say("negative id", hex(app->Invoke(-5, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none,
                                       &result, nullptr, nullptr)));
    say("no arguments structure", hex(app->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                                  nullptr, &result, nullptr, nullptr)));
    DISPID id = 0;
    const wchar_t* find = L"AKT_Find";
    app->GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(&find), 1, LOCALE_USER_DEFAULT, &id);
    VARIANT where = text(L"1=1");
    DISPPARAMS one{&where, nullptr, 1, 0};
    say("no place for the error",
        hex(app->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &one, nullptr, nullptr,
                        nullptr)));
    VariantClear(&where);
    phones->Release();
    app->Release();
    tools->Release();
    CoUninitialize();
    return 0;
}
