#pragma once

#include <functional>
#include <string_view>

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

// Errors: 429 where the class is unknown. What the factory raises passes through.
ObjectRef create_object(std::string_view class_name);
// Errors: 429 where no such object is running.
ObjectRef active_object(std::string_view class_name);

// Where message boxes go; an empty handler restores the system's own.
using MessageHandler = std::function<void(std::string_view text)>;
void set_message_handler(MessageHandler handler);
void show_message(std::string_view text);

// How a script host's interpreter lock is given up while this thread waits. Installed once by a
// binding; without one, waiting needs nothing.
struct BlockingHook {
    void* (*release)() = nullptr;
    void (*reacquire)(void*) = nullptr;
};
void set_blocking_hook(BlockingHook hook);

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
