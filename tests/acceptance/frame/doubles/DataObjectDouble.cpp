#include "frame/doubles/DataObjectDouble.h"

#include "frame/nodeData.h"

#include <cstddef>
#include <cstring>

namespace Acceptance
{
namespace
{

// Of the objects in a SMMCDataObjects, behind its count.
constexpr std::size_t firstPart = offsetof(SMMCDataObjects, lpDataObject);

} // namespace

void DataObjectDouble::answerComposite(const std::vector<IDataObject*>& parts)
{
    answerComposite(parts, static_cast<DWORD>(parts.size()), firstPart + parts.size() * sizeof(IDataObject*));
}

void DataObjectDouble::answerComposite(const std::vector<IDataObject*>& parts, DWORD count, std::size_t size)
{
    std::vector<unsigned char> bytes(std::max(size, firstPart + parts.size() * sizeof(IDataObject*)));
    std::memcpy(bytes.data(), &count, sizeof count);
    std::memcpy(bytes.data() + firstPart, parts.data(), parts.size() * sizeof(IDataObject*));
    bytes.resize(size);
    m_answers[formatOf(L"CCF_MULTI_SELECT_SNAPINS").cfFormat] = bytes;
    m_answers[formatOf(L"CCF_MMC_MULTISELECT_DATAOBJECT").cfFormat] = {1, 0, 0, 0};
}

HRESULT DataObjectDouble::GetData(FORMATETC* format, STGMEDIUM* medium)
{
    *medium = {};
    const auto answer = m_answers.find(format->cfFormat);
    if (answer == m_answers.end())
    {
        return DV_E_FORMATETC;
    }
    medium->tymed = TYMED_HGLOBAL;
    medium->hGlobal = GlobalAlloc(GMEM_FIXED, answer->second.size());
    std::memcpy(medium->hGlobal, answer->second.data(), answer->second.size());
    return S_OK;
}

} // namespace Acceptance
