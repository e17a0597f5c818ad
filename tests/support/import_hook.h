// A function of USER32, or of another library, that this program calls is replaced by another one, so that a test sees the calls of the code
// that is linked into it.
#pragma once

class ImportHook {
public:
    // function: an imported function's name. replacement has its type.
    template <typename Function>
    ImportHook(const char* function, Function* replacement, const char* library = "USER32.dll")
        : ImportHook(function, reinterpret_cast<void*>(replacement), library)
    {
    }
    ImportHook(const char* function, void* replacement, const char* library);
    ~ImportHook();
    ImportHook(const ImportHook&) = delete;
    ImportHook& operator=(const ImportHook&) = delete;

private:
    void** slot_;
    void*  real_;
};

// The beeps that the program's code asks for while one of these lives. Nothing sounds.
class BeepCounter {
public:
    BeepCounter();
    int Count() const; // since the last call

private:
    ImportHook hook_;
};
