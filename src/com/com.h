// The rules by which objects cross the border of a library: interfaces that are asked for by number
// and counted, class objects that make them, and results as numbers. Where the platform has them,
// they are the platform's; elsewhere they are declared here, under the same names, with the same
// numbers and in the same order.
//
// QueryInterface gives a counted reference, or null and E_NOINTERFACE; asked for IUnknown, an
// object gives the same pointer whichever of its interfaces is asked. AddRef and Release return the
// new count. No call throws.
#pragma once

#ifdef _WIN32

#include <olectl.h>
#include <unknwn.h>

#else

#include <cstdint>

#define STDMETHODCALLTYPE

namespace tamrikon {

using HRESULT = std::int32_t;
using ULONG = std::uint32_t;
using BOOL = int;

constexpr BOOL FALSE = 0;
constexpr BOOL TRUE = 1;

constexpr HRESULT hresult(std::uint32_t number) {
  return static_cast<HRESULT>(number);
}

constexpr HRESULT S_OK = hresult(0x00000000);
constexpr HRESULT S_FALSE = hresult(0x00000001);
constexpr HRESULT E_NOTIMPL = hresult(0x80004001);
constexpr HRESULT E_NOINTERFACE = hresult(0x80004002);
constexpr HRESULT E_POINTER = hresult(0x80004003);
constexpr HRESULT E_FAIL = hresult(0x80004005);
constexpr HRESULT E_UNEXPECTED = hresult(0x8000FFFF);
constexpr HRESULT E_OUTOFMEMORY = hresult(0x8007000E);
constexpr HRESULT E_INVALIDARG = hresult(0x80070057);
constexpr HRESULT CLASS_E_NOAGGREGATION = hresult(0x80040110);
constexpr HRESULT CLASS_E_CLASSNOTAVAILABLE = hresult(0x80040111);
constexpr HRESULT SELFREG_E_TYPELIB = hresult(0x80040200);
constexpr HRESULT SELFREG_E_CLASS = hresult(0x80040201);

constexpr bool SUCCEEDED(HRESULT result) {
  return result >= 0;
}
constexpr bool FAILED(HRESULT result) {
  return result < 0;
}

struct GUID {
  std::uint32_t Data1;
  std::uint16_t Data2;
  std::uint16_t Data3;
  std::uint8_t Data4[8];

  friend bool operator==(const GUID&, const GUID&) = default;
};

using IID = GUID;
using CLSID = GUID;
using REFIID = const IID&;
using REFCLSID = const CLSID&;

constexpr IID IID_IUnknown = {0x00000000, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr IID IID_IClassFactory = {0x00000001, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

struct IUnknown {
  virtual HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) = 0;
  virtual ULONG STDMETHODCALLTYPE AddRef() = 0;
  virtual ULONG STDMETHODCALLTYPE Release() = 0;

 protected:
  ~IUnknown() = default;
};

struct IClassFactory : IUnknown {
  /// `outer`, the object that the new one is to be a part of, is null for one on its own.
  virtual HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) = 0;

  /// Keeps the library loaded though none of its objects is held, or no longer.
  virtual HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) = 0;

 protected:
  ~IClassFactory() = default;
};

struct SAFEARRAY;

}  // namespace tamrikon

#endif
