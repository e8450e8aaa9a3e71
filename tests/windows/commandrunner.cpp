// Runs command lines and says what came of them. Each line of standard input (UTF-8) is one command line, handed to
// Windows as it stands. Every one is answered by a line of its own: the exit code, the text of the box that orv.exe
// showed meanwhile, as a user gets it by pressing Ctrl+C (of a box of the system's own, its parts with a "|" after
// each), and what it wrote to standard error; a tab between them, line ends as "\n". The box is closed with Return.

#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <windows.h>

namespace {

constexpr DWORD patience = 60'000; // milliseconds
constexpr DWORD pollingInterval = 20;

std::wstring toWide(const std::string &text)
{
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                                             wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

std::string toUtf8(const std::wstring &text)
{
    std::string bytes(text.size() * 3, '\0');
    bytes.resize(
        static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                                     bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

// Calls `condition` until it holds; false when patience is over.
template<typename Condition>
bool waitUntil(Condition condition)
{
    for (DWORD waited = 0; !condition(); waited += pollingInterval) {
        if (waited >= patience)
            return false;
        Sleep(pollingInterval);
    }
    return true;
}

bool belongsToProgram(HWND window)
{
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id);
    wchar_t image[32768] = {};
    DWORD length = 32768;
    const bool known = QueryFullProcessImageNameW(process, 0, image, &length);
    CloseHandle(process);
    const std::wstring name(image);
    const std::wstring suffix = L"\\orv.exe";
    return known && name.size() > suffix.size() && name.substr(name.size() - suffix.size()) == suffix;
}

BOOL CALLBACK takeBox(HWND window, LPARAM found)
{
    if (!IsWindowVisible(window) || GetWindowTextLengthW(window) == 0 || !belongsToProgram(window))
        return TRUE;
    *reinterpret_cast<HWND *>(found) = window;
    return FALSE;
}

HWND boxOfProgram()
{
    HWND box = nullptr;
    EnumWindows(takeBox, reinterpret_cast<LPARAM>(&box));
    return box;
}

void press(std::initializer_list<BYTE> keys)
{
    for (const BYTE key : keys)
        keybd_event(key, 0, 0, 0);
    for (auto key = std::rbegin(keys); key != std::rend(keys); ++key)
        keybd_event(*key, 0, KEYEVENTF_KEYUP, 0);
}

void clearClipboard()
{
    if (!waitUntil([] { return OpenClipboard(nullptr); }))
        throw std::runtime_error("the clipboard cannot be opened");
    EmptyClipboard();
    CloseClipboard();
}

std::optional<std::wstring> clipboardText()
{
    if (!OpenClipboard(nullptr))
        return std::nullopt;
    std::optional<std::wstring> text;
    if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
        text = static_cast<const wchar_t *>(GlobalLock(data));
        GlobalUnlock(data);
    }
    CloseClipboard();
    return text;
}

std::wstring textOf(HWND window)
{
    std::wstring text(4096, L'\0');
    text.resize(
        static_cast<std::size_t>(SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

BOOL CALLBACK appendText(HWND window, LPARAM text)
{
    *reinterpret_cast<std::wstring *>(text) += textOf(window) + L'|';
    return TRUE;
}

// The system's own boxes are made of windows that say what is in them: title, button, text.
bool isNativeBox(HWND box)
{
    wchar_t name[16] = {};
    GetClassNameW(box, name, 16);
    return std::wstring(name) == L"#32770";
}

std::wstring nativeTextOf(HWND box)
{
    std::wstring text = textOf(box) + L'|';
    EnumChildWindows(box, appendText, reinterpret_cast<LPARAM>(&text));
    SetForegroundWindow(box);
    return text;
}

std::wstring copiedTextOf(HWND box)
{
    std::optional<std::wstring> text;
    clearClipboard();
    const bool copied = waitUntil([&] {
        SetForegroundWindow(box);
        press({VK_CONTROL, 'C'});
        Sleep(100);
        return (text = clipboardText()).has_value();
    });
    if (!copied)
        throw std::runtime_error("the box does not give its text");
    return *text;
}

std::string escaped(const std::string &text)
{
    std::string line;
    for (const char c : text) {
        if (c == '\n')
            line += "\\n";
        else if (c == '\t')
            line += "\\t";
        else if (c != '\r')
            line += c;
    }
    return line;
}

std::string readAll(HANDLE pipe)
{
    std::string bytes;
    char piece[4096];
    for (DWORD count = 0; ReadFile(pipe, piece, sizeof piece, &count, nullptr) && count > 0;)
        bytes.append(piece, count);
    CloseHandle(pipe);
    return bytes;
}

std::string run(const std::string &commandLine)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    HANDLE errorsToRead = nullptr;
    HANDLE errorsToWrite = nullptr;
    CreatePipe(&errorsToRead, &errorsToWrite, &inherited, 0);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdError = errorsToWrite;
    PROCESS_INFORMATION process = {};
    std::wstring text = toWide(commandLine);
    if (!CreateProcessW(nullptr, text.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process))
        throw std::runtime_error("cannot start: " + commandLine);
    CloseHandle(errorsToWrite);

    const auto hasEnded = [&] { return WaitForSingleObject(process.hProcess, 0) == WAIT_OBJECT_0; };
    std::wstring boxes;
    HWND box = nullptr;
    while (waitUntil([&] { return hasEnded() || (box = boxOfProgram()) != nullptr; }) && !hasEnded()) {
        boxes += isNativeBox(box) ? nativeTextOf(box) : copiedTextOf(box);
        press({VK_RETURN});
        if (!waitUntil([&] { return !IsWindow(box); }))
            throw std::runtime_error("the box stays");
    }

    DWORD code = 0;
    if (!hasEnded() || !GetExitCodeProcess(process.hProcess, &code))
        throw std::runtime_error("does not end: " + commandLine);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return std::to_string(static_cast<int>(code)) + '\t' + escaped(toUtf8(boxes)) + '\t' +
           escaped(readAll(errorsToRead));
}

} // namespace

int main()
{
    try {
        for (std::string line; std::getline(std::cin, line);) {
            if (!line.empty() && line.back() == '\r')
                line.pop_back();
            std::cout << run(line) << std::endl;
        }
        return 0;
    } catch (const std::exception &error) {
        std::cout << "commandrunner: " << error.what() << std::endl;
        return 1;
    }
}
