#include "brimlow/security/Certificate.h"

#include <utility>

namespace Security
{

Certificate::Certificate(Fields fields) : m_fields(std::move(fields)) {}

} // namespace Security
