#pragma once

#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "cvdeveloper/automation/object.h"

namespace cvdeveloper {

// The process's classes and running objects by class name ("clqexStdC10.cUtil"), without regard to
// case. May be used from any thread.
using ClassFactory = std::function<ObjectRef()>;

// An empty factory takes the class out.
void register_class(std::string_view class_name, ClassFactory factory);
// Nothing takes the running object out.
void register_active_object(std::string_view class_name, ObjectRef object);
void clear_registry();

// Where classes and running objects are looked for that nobody has registered here: the system's
// own, where it has such. Installed once by a binding; nothing is what is not found.
struct SystemClasses {
    ObjectRef (*create)(std::string_view class_name) = nullptr;
    ObjectRef (*active)(std::string_view class_name) = nullptr;
};
void set_system_classes(SystemClasses classes);

// Errors: 429 where the class is unknown. What the factory raises passes through.
ObjectRef create_object(std::string_view class_name);
// Errors: 429 where no such object is running.
ObjectRef active_object(std::string_view class_name);

// Where message boxes go; an empty handler restores the system's own.
using MessageHandler = std::function<void(std::string_view text)>;
void set_message_handler(MessageHandler handler);
void show_message(std::string_view text);

// Keeps the messages of this thread to itself for its lifetime: they reach no handler.
class MessageCapture {
  public:
    MessageCapture();
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;
    ~MessageCapture();

    [[nodiscard]] const std::vector<std::string>& messages() const noexcept { return messages_; }
    // The error that was being handled when the last message was shown, or nothing.
    [[nodiscard]] const std::exception_ptr& cause() const noexcept { return cause_; }

  private:
    friend void show_message(std::string_view text);

    std::vector<std::string> messages_;
    std::exception_ptr cause_;
    MessageCapture* outer_;
};

// How a script host's interpreter lock is given up while this thread waits. Installed once by a
// binding; without one, waiting needs nothing.
struct BlockingHook {
    void* (*release)() = nullptr;
    void (*reacquire)(void*) = nullptr;
    // Raises an Interrupt where the user has asked to stop. Called while the lock is given up.
    void (*check_interrupt)() = nullptr;
};
void set_blocking_hook(BlockingHook hook);

// Raises an Interrupt where the script host's user has asked to stop. What takes long inside a
// BlockingScope asks now and then.
void check_interrupt();

// Gives up the interpreter lock for its lifetime.
class BlockingScope {
  public:
    BlockingScope();
    BlockingScope(const BlockingScope&) = delete;
    BlockingScope& operator=(const BlockingScope&) = delete;
    ~BlockingScope();

  private:
    BlockingHook hook_;
    void* state_ = nullptr;
};

}  // namespace cvdeveloper
