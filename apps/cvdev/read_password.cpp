#include "read_password.h"

#include <termios.h>
#include <unistd.h>

#include <iostream>
#include <stdexcept>

namespace cvdev {

namespace {

// The terminal shows nothing of what is typed for its lifetime.
class NoEcho {
  public:
    NoEcho() {
        tcgetattr(STDIN_FILENO, &before_);
        termios silent = before_;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    }
    NoEcho(const NoEcho&) = delete;
    NoEcho& operator=(const NoEcho&) = delete;
    ~NoEcho() { tcsetattr(STDIN_FILENO, TCSAFLUSH, &before_); }

  private:
    termios before_{};
};

std::string read_line() {
    std::string line;
    std::getline(std::cin, line);
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return line;
}

std::string ask(const char* question) {
    std::string answer;
    {
        // Before the question: what is typed ahead of it would be seen, and is dropped.
        const NoEcho hidden;
        std::cerr << question << std::flush;
        answer = read_line();
    }
    std::cerr << "\n";
    return answer;
}

}  // namespace

std::string read_new_password() {
    const bool is_terminal = isatty(STDIN_FILENO) != 0;
    std::string password = is_terminal ? ask("Neues Kennwort: ") : read_line();
    if (password.empty()) {
        throw std::runtime_error("Das Kennwort ist leer; es ist nichts geändert.");
    }
    if (is_terminal && ask("Noch einmal: ") != password) {
        throw std::runtime_error("Die beiden Kennwörter sind verschieden; es ist nichts geändert.");
    }
    return password;
}

}  // namespace cvdev
