// Loads a type library and prints what it says, a line each: type_library_dump FILE
//
//   library NAME VERSION HELP
//   enum NAME.MEMBER VALUE
//   class NAME ID INTERFACE
//   interface NAME ID HELP
//   NAME.OPERATION id KIND slot | result TYPE | ARGUMENT TYPE [DIRECTION] [= DEFAULT] ... | HELP
#include <windows.h>

#include <oleauto.h>
#include <shellapi.h>

#include <fcntl.h>
#include <io.h>
#include <cstdio>
#include <string>
#include <vector>

namespace {

std::string narrow(const wchar_t* text) {
    if (text == nullptr) {
        return {};
    }
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), size, nullptr, nullptr);
    bytes.pop_back();
    return bytes;
}

std::string text_of_id(REFGUID id) {
    wchar_t text[64];
    StringFromGUID2(id, text, 64);
    return narrow(text);
}

struct Documentation {
    std::string name;
    std::string help;
};

template <class Described>
Documentation documentation(Described& described, MEMBERID id) {
    BSTR name = nullptr;
    BSTR help = nullptr;
    described.GetDocumentation(id, &name, &help, nullptr, nullptr);
    Documentation found{narrow(name), narrow(help)};
    SysFreeString(name);
    SysFreeString(help);
    return found;
}

std::string type_text(ITypeInfo& info, const TYPEDESC& type) {
    switch (type.vt) {
        case VT_PTR:
            return type_text(info, *type.lptdesc) + "*";
        case VT_USERDEFINED: {
            ITypeInfo* named = nullptr;
            if (FAILED(info.GetRefTypeInfo(type.hreftype, &named))) {
                return "?";
            }
            const std::string name = documentation(*named, MEMBERID_NIL).name;
            named->Release();
            return name;
        }
        case VT_BSTR:
            return "BSTR";
        case VT_BOOL:
            return "VARIANT_BOOL";
        case VT_I2:
            return "short";
        case VT_I4:
            return "long";
        case VT_R8:
            return "double";
        case VT_DATE:
            return "DATE";
        case VT_VARIANT:
            return "VARIANT";
        case VT_DISPATCH:
            return "IDispatch*";
        case VT_HRESULT:
            return "HRESULT";
        case VT_VOID:
            return "void";
        default:
            return "vt" + std::to_string(type.vt);
    }
}

std::string default_text(VARIANT value) {
    if (V_VT(&value) == VT_BSTR) {
        return "\"" + narrow(V_BSTR(&value)) + "\"";
    }
    VARIANT number;
    VariantInit(&number);
    if (FAILED(VariantChangeType(&number, &value, 0, VT_I4))) {
        return "?";
    }
    return std::to_string(V_I4(&number));
}

std::string parameter_text(ITypeInfo& info, const ELEMDESC& element, const wchar_t* name) {
    const USHORT flags = element.paramdesc.wParamFlags;
    std::string text = " | " + narrow(name) + " " + type_text(info, element.tdesc);
    text += (flags & PARAMFLAG_FRETVAL) != 0 ? " retval" : "";
    text += (flags & PARAMFLAG_FIN) != 0 && (flags & PARAMFLAG_FOUT) != 0 ? " inout" : "";
    text += (flags & PARAMFLAG_FOPT) != 0 ? " optional" : "";
    if ((flags & PARAMFLAG_FHASDEFAULT) != 0) {
        text += " = " + default_text(element.paramdesc.pparamdescex->varDefaultValue);
    }
    return text;
}

void print_operations(ITypeInfo& info, const std::string& interface_name, const TYPEATTR& type) {
    for (UINT i = 0; i < type.cFuncs; ++i) {
        FUNCDESC* function = nullptr;
        if (FAILED(info.GetFuncDesc(i, &function))) {
            std::printf("%s: operation %u cannot be read\n", interface_name.c_str(), i);
            continue;
        }
        std::vector<BSTR> names(static_cast<std::size_t>(function->cParams) + 2);
        UINT count = 0;
        info.GetNames(function->memid, names.data(), static_cast<UINT>(names.size()), &count);
        const Documentation about = documentation(info, function->memid);
        const char* kind = function->invkind == INVOKE_PROPERTYGET   ? "get"
                           : function->invkind == INVOKE_PROPERTYPUT ? "put"
                                                                     : "method";
        std::string line = interface_name + "." + about.name + " " +
                           std::to_string(function->memid) + " " + kind + " " +
                           std::to_string(static_cast<std::size_t>(function->oVft) / sizeof(void*));
        for (SHORT p = 0; p < function->cParams; ++p) {
            const auto at = static_cast<std::size_t>(p) + 1;
            line +=
                parameter_text(info, function->lprgelemdescParam[p], at < count ? names[at] : L"");
        }
        std::printf("%s || %s\n", line.c_str(), about.help.c_str());
        for (UINT n = 0; n < count; ++n) {
            SysFreeString(names[n]);
        }
        info.ReleaseFuncDesc(function);
    }
}

void print_enumeration(ITypeInfo& info, const std::string& name, const TYPEATTR& type) {
    for (UINT i = 0; i < type.cVars; ++i) {
        VARDESC* member = nullptr;
        if (SUCCEEDED(info.GetVarDesc(i, &member))) {
            std::printf("enum %s.%s %s\n", name.c_str(),
                        documentation(info, member->memid).name.c_str(),
                        default_text(*member->lpvarValue).c_str());
            info.ReleaseVarDesc(member);
        }
    }
}

void print_class(ITypeInfo& info, const std::string& name, const TYPEATTR& type) {
    HREFTYPE reference = 0;
    ITypeInfo* implemented = nullptr;
    std::string interface_name = "?";
    if (SUCCEEDED(info.GetRefTypeOfImplType(0, &reference)) &&
        SUCCEEDED(info.GetRefTypeInfo(reference, &implemented))) {
        interface_name = documentation(*implemented, MEMBERID_NIL).name;
        implemented->Release();
    }
    std::printf("class %s %s %s\n", name.c_str(), text_of_id(type.guid).c_str(),
                interface_name.c_str());
}

// A dual interface shows its late-bound face first; the vtable is behind it.
void print_interface(ITypeInfo& info, const std::string& name) {
    HREFTYPE reference = 0;
    ITypeInfo* vtable = nullptr;
    TYPEATTR* type = nullptr;
    if (FAILED(info.GetRefTypeOfImplType(static_cast<UINT>(-1), &reference)) ||
        FAILED(info.GetRefTypeInfo(reference, &vtable)) || FAILED(vtable->GetTypeAttr(&type))) {
        std::printf("%s is no dual interface\n", name.c_str());
        return;
    }
    std::printf("interface %s %s %s\n", name.c_str(), text_of_id(type->guid).c_str(),
                documentation(info, MEMBERID_NIL).help.c_str());
    print_operations(*vtable, name, *type);
    vtable->ReleaseTypeAttr(type);
    vtable->Release();
}

int dump(const wchar_t* file) {
    ITypeLib* library = nullptr;
    if (FAILED(LoadTypeLibEx(file, REGKIND_NONE, &library))) {
        std::fprintf(stderr, "%s has no type library\n", narrow(file).c_str());
        return 1;
    }
    TLIBATTR* about = nullptr;
    library->GetLibAttr(&about);
    const Documentation named = documentation(*library, MEMBERID_NIL);
    std::printf("library %s %s %u.%u %s\n", named.name.c_str(), text_of_id(about->guid).c_str(),
                about->wMajorVerNum, about->wMinorVerNum, named.help.c_str());
    library->ReleaseTLibAttr(about);
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
        ITypeInfo* info = nullptr;
        TYPEATTR* type = nullptr;
        library->GetTypeInfo(i, &info);
        info->GetTypeAttr(&type);
        const std::string name = documentation(*info, MEMBERID_NIL).name;
        if (type->typekind == TKIND_DISPATCH) {
            print_interface(*info, name);
        } else if (type->typekind == TKIND_ENUM) {
            print_enumeration(*info, name, *type);
        } else if (type->typekind == TKIND_COCLASS) {
            print_class(*info, name, *type);
        }
        info->ReleaseTypeAttr(type);
        info->Release();
    }
    library->Release();
    return 0;
}

}  // namespace

int main() {
    _setmode(_fileno(stdout), _O_BINARY);
    int count = 0;
    LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (words == nullptr || count != 2) {
        std::fputs("usage: type_library_dump FILE\n", stderr);
        return 2;
    }
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const int result = dump(words[1]);
    CoUninitialize();
    return result;
}
