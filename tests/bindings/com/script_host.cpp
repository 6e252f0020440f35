// Runs a script in a language of the system's: script_host FILE [ARGUMENT...]
//
// Reads UTF-8, writes UTF-8. The script has WScript.Echo, WScript.Arguments and WScript.Quit. An
// error is reported with number, source, text and line on standard error, and ends with code 1.
#include <windows.h>

#include <activscp.h>
#include <oleauto.h>
#include <shellapi.h>

#include <fcntl.h>
#include <io.h>
#include <atomic>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

std::string narrow(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    std::string bytes(text.size() * 3, '\0');
    bytes.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

std::wstring wide(std::string_view bytes) {
    const int size = static_cast<int>(bytes.size());
    std::wstring text(bytes.size(), L'\0');
    text.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, text.data(), size)));
    return text;
}

std::wstring text_of(BSTR text) {
    return {text, SysStringLen(text)};
}

// An object with a few members, counted.
class SmallObject : public IDispatch {
  public:
    SmallObject() = default;
    SmallObject(const SmallObject&) = delete;
    SmallObject& operator=(const SmallObject&) = delete;
    virtual ~SmallObject() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** target) override {
        const bool known = id == IID_IUnknown || id == IID_IDispatch;
        *target = known ? this : nullptr;
        if (known) {
            AddRef();
        }
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG count = --references_;
        if (count == 0) {
            delete this;
        }
        return count;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override {
        return DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) override {
        for (const Member& member : members()) {
            if (count == 1 && _wcsicmp(names[0], member.name) == 0) {
                ids[0] = member.id;
                return S_OK;
            }
        }
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given,
                                     VARIANT* result, EXCEPINFO*, UINT*) override {
        return call(id, *given, result);
    }

  protected:
    struct Member {
        const wchar_t* name;
        DISPID id;
    };
    virtual std::vector<Member> members() const = 0;
    virtual HRESULT call(DISPID id, const DISPPARAMS& given, VARIANT* result) = 0;

  private:
    std::atomic<ULONG> references_{1};
};

class ScriptArguments final : public SmallObject {
  public:
    explicit ScriptArguments(std::vector<std::wstring> texts) : texts_(std::move(texts)) {}

  private:
    std::vector<Member> members() const override {
        return {{L"Item", DISPID_VALUE}, {L"Count", 1}};
    }
    HRESULT call(DISPID id, const DISPPARAMS& given, VARIANT* result) override {
        if (result == nullptr) {
            return S_OK;
        }
        if (id == DISPID_VALUE && given.cArgs == 1) {
            VARIANT index;
            VariantInit(&index);
            if (FAILED(VariantChangeType(&index, &given.rgvarg[0], 0, VT_I4)) ||
                static_cast<std::size_t>(V_I4(&index)) >= texts_.size()) {
                return DISP_E_BADINDEX;
            }
            V_VT(result) = VT_BSTR;
            V_BSTR(result) = SysAllocString(texts_[static_cast<std::size_t>(V_I4(&index))].c_str());
        } else {
            V_VT(result) = VT_I4;
            V_I4(result) = static_cast<LONG>(texts_.size());
        }
        return S_OK;
    }

    std::vector<std::wstring> texts_;
};

class WScript final : public SmallObject {
  public:
    explicit WScript(std::vector<std::wstring> arguments)
        : arguments_(new ScriptArguments(std::move(arguments))) {}
    ~WScript() override { arguments_->Release(); }

  private:
    std::vector<Member> members() const override {
        return {{L"Echo", 1}, {L"Arguments", 2}, {L"Quit", 3}};
    }
    HRESULT call(DISPID id, const DISPPARAMS& given, VARIANT* result) override {
        if (id == 1) {
            return echo(given);
        }
        if (id == 3) {
            std::fflush(stdout);
            VARIANT code;
            VariantInit(&code);
            ExitProcess(given.cArgs == 1 &&
                                SUCCEEDED(VariantChangeType(&code, &given.rgvarg[0], 0, VT_I4))
                            ? static_cast<UINT>(V_I4(&code))
                            : 0);
        }
        if (given.cArgs == 1) {
            return arguments_->Invoke(DISPID_VALUE, IID_NULL, 0, DISPATCH_PROPERTYGET,
                                      const_cast<DISPPARAMS*>(&given), result, nullptr, nullptr);
        }
        if (result != nullptr) {
            arguments_->AddRef();
            V_VT(result) = VT_DISPATCH;
            V_DISPATCH(result) = arguments_;
        }
        return S_OK;
    }
    static HRESULT echo(const DISPPARAMS& given) {
        std::string line;
        for (UINT i = given.cArgs; i-- > 0;) {
            VARIANT text;
            VariantInit(&text);
            const HRESULT status =
                VariantChangeType(&text, &given.rgvarg[i], VARIANT_LOCALBOOL, VT_BSTR);
            if (FAILED(status)) {
                return status;
            }
            line += (line.empty() ? "" : " ") + narrow(text_of(V_BSTR(&text)));
            VariantClear(&text);
        }
        std::puts(line.c_str());
        return S_OK;
    }

    SmallObject* arguments_;
};

class Site final : public IActiveScriptSite {
  public:
    explicit Site(IDispatch& global) : global_(&global) {}
    Site(const Site&) = delete;
    Site& operator=(const Site&) = delete;
    virtual ~Site() = default;

    bool failed = false;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** target) override {
        const bool known = id == IID_IUnknown || id == __uuidof(IActiveScriptSite);
        *target = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetLCID(LCID* locale) override {
        *locale = LOCALE_USER_DEFAULT;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR, DWORD wanted, IUnknown** item,
                                          ITypeInfo** type) override {
        if ((wanted & SCRIPTINFO_ITYPEINFO) != 0 && type != nullptr) {
            *type = nullptr;
        }
        if ((wanted & SCRIPTINFO_IUNKNOWN) != 0) {
            global_->AddRef();
            *item = global_;
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* error) override {
        EXCEPINFO information{};
        DWORD context = 0;
        ULONG line = 0;
        LONG column = 0;
        error->GetExceptionInfo(&information);
        error->GetSourcePosition(&context, &line, &column);
        const std::string source = narrow(text_of(information.bstrSource));
        const std::string text = narrow(text_of(information.bstrDescription));
        std::fprintf(stderr, "line %lu: error 0x%08lX|%s|%s\n", line + 1,
                     static_cast<unsigned long>(information.scode), source.c_str(), text.c_str());
        failed = true;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }

  private:
    IDispatch* global_;
};

int run(const std::wstring& file, std::vector<std::wstring> arguments) {
    std::ifstream in(narrow(file), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    if (!in) {
        std::fprintf(stderr, "%s cannot be read\n", narrow(file).c_str());
        return 2;
    }
    const bool is_jscript = file.ends_with(L".js");
    CLSID language{};
    IActiveScript* engine = nullptr;
    if (FAILED(CLSIDFromProgID(is_jscript ? L"JScript" : L"VBScript", &language)) ||
        FAILED(CoCreateInstance(language, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IActiveScript),
                                reinterpret_cast<void**>(&engine)))) {
        std::fputs("the script engine is missing\n", stderr);
        return 2;
    }
    auto* global = new WScript(std::move(arguments));
    Site site(*global);
    IActiveScriptParse* parser = nullptr;
    engine->QueryInterface(__uuidof(IActiveScriptParse), reinterpret_cast<void**>(&parser));
    engine->SetScriptSite(&site);
    parser->InitNew();
    engine->AddNamedItem(L"WScript", SCRIPTITEM_ISVISIBLE);
    const HRESULT parsed = parser->ParseScriptText(wide(bytes).c_str(), nullptr, nullptr, nullptr,
                                                   0, 0, SCRIPTTEXT_ISVISIBLE, nullptr, nullptr);
    const HRESULT ran = engine->SetScriptState(SCRIPTSTATE_CONNECTED);
    parser->Release();
    engine->Close();
    engine->Release();
    global->Release();
    return site.failed || FAILED(parsed) || FAILED(ran) ? 1 : 0;
}

}  // namespace

int main() {
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    int count = 0;
    LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (words == nullptr || count < 2) {
        std::fputs("usage: script_host FILE [ARGUMENT...]\n", stderr);
        return 2;
    }
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const int result = run(words[1], {words + 2, words + count});
    std::fflush(stdout);
    CoUninitialize();
    return result;
}
