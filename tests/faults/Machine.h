#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// The common application data folder of a machine that only the tests know.
class Machine
{
  public:
    // An empty one, which this process uses as long as the object lives.
    Machine();
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;
    ~Machine();

    // Lets this process use the folder of another one's machine.
    static void use(const std::filesystem::path& folder);
    // The folder in use.
    static std::filesystem::path folder();

    // Remembers what is there, and brings it back.
    void keep() const;
    void restore() const;
    // Lets two hours go by: what a program left unfinished, no program works at any more.
    void wait() const;

    // Everything in the folder, one line each, with who may use it, and what is in the files. Of those that never come
    // out the same twice (databases, what is encrypted) only that they are there.
    std::string list() const;

    // Puts a file below the folder; folders are made as needed.
    static void write(const std::filesystem::path& relative, std::string_view content);

  private:
    // Where a machine can be. Best in memory: whether a disk keeps what it is given when the power fails is not what is
    // tried here.
    static std::filesystem::path newPlace();
    static void age(const std::filesystem::path& path);

    std::filesystem::path m_place = newPlace();
};
