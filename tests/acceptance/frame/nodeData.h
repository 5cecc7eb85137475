#pragma once

#include "platform/mmc.h"

#include <string>
#include <vector>

// What a data object tells about the node that it stands for.
namespace Acceptance
{

FORMATETC formatOf(const wchar_t* name);

// GetDataHere into fresh global memory of that size, filled with 0xEE before; bytes: what is in it afterwards.
HRESULT dataHere(IDataObject* object, const wchar_t* format, std::size_t size, std::vector<unsigned char>& bytes);

// Throw std::runtime_error when the object does not answer.
GUID nodeTypeOf(IDataObject* object);
GUID classIdOf(IDataObject* object);
std::wstring nodeTypeTextOf(IDataObject* object);
std::wstring displayNameOf(IDataObject* object);

// "{5E04C557-3019-11D3-8856-204C4F4F5020}"
std::wstring text(const GUID& guid);
GUID guid(const std::wstring& text);

} // namespace Acceptance
