#pragma once

#include <openssl/rand.h>

// OpenSSL 3 calls the interface deprecated, but has no other one for a single process.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

// While it lives, the system has no random numbers.
class NoRandomNumbers
{
  public:
    NoRandomNumbers() : m_former(RAND_get_rand_method()) { RAND_set_rand_method(&m_none); }
    NoRandomNumbers(const NoRandomNumbers&) = delete;
    NoRandomNumbers& operator=(const NoRandomNumbers&) = delete;
    ~NoRandomNumbers() { RAND_set_rand_method(m_former); }

  private:
    static int fail(unsigned char*, int) { return 0; }

    const RAND_METHOD* m_former;
    const RAND_METHOD m_none{
        .seed = nullptr, .bytes = &fail, .cleanup = nullptr, .add = nullptr, .pseudorand = &fail, .status = nullptr};
};

#pragma GCC diagnostic pop
