#pragma once

#include <string>
#include <vector>

namespace Security
{

// A password or key in text form, wiped from memory when it ends. It can be moved but not copied, so that no second
// one stays behind.
class Secret
{
  public:
    // The empty password.
    Secret() : Secret(std::string()) {}
    // Takes the text over and wipes it where it was.
    explicit Secret(std::string&& text);
    // 256 random bits in hexadecimal.
    static Secret random();

    Secret(Secret&&) noexcept = default;
    Secret& operator=(Secret&& other) noexcept;
    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;
    ~Secret() { wipe(); }

    // Ends with a zero.
    const char* get() const noexcept { return m_text.data(); }
    int length() const noexcept { return static_cast<int>(m_text.size()) - 1; }
    bool empty() const noexcept { return length() <= 0; }

  private:
    void wipe() noexcept;

    // A std::string would keep short texts in itself and leave them behind when it is moved.
    std::vector<char> m_text;
};

} // namespace Security
