// What the host of add-ins and an add-in call each other by.
//
// An add-in is a class that is registered twice: as a class of a library, and with the IDE, under
// its programmatic identifier. The host makes an object of it, connects it, and disconnects it
// before it lets go of it.
#pragma once

#include <cstdint>

#include "com/com.h"

namespace tamrikon {

class AddInHost;

enum vbext_ConnectMode : std::int32_t {
  vbext_cm_AfterStartup = 0,  // a user has loaded the add-in
  vbext_cm_Startup = 1,       // the host has, as it was started
  vbext_cm_External = 2,      // another program has
};

enum vbext_RemoveMode : std::int32_t {
  vbext_dm_HostShutdown = 0,
  vbext_dm_UserClosed = 1,
};

/// What a host hands to add-ins as itself. Behind the number stands the whole surface of the host,
/// which is one of C++: whoever changes a class that can be reached from AddInHost makes a new
/// number, so that a host and an add-in of different builds refuse each other.
struct IAddInApplication : IUnknown {
  /// The host lives as long as the add-in is connected.
  virtual HRESULT STDMETHODCALLTYPE get_Host(AddInHost** host) = 0;

 protected:
  ~IAddInApplication() = default;
};

/// {6FDE041F-E956-4E36-8CC7-6D22EB8A8A49}
constexpr IID IID_IAddInApplication = {
    0x6FDE041F, 0xE956, 0x4E36, {0x8C, 0xC7, 0x6D, 0x22, 0xEB, 0x8A, 0x8A, 0x49}};

struct IAddIn : IUnknown {
  /// `application` answers to IAddInApplication. `addInInst` stands for the add-in with its host
  /// and may be null; `custom` may be null.
  virtual HRESULT STDMETHODCALLTYPE OnConnection(IUnknown* application, vbext_ConnectMode mode,
                                                 IUnknown* addInInst, SAFEARRAY** custom) = 0;

  /// The add-in has let go of everything of the host's when it returns.
  virtual HRESULT STDMETHODCALLTYPE OnDisconnection(vbext_RemoveMode mode, SAFEARRAY** custom) = 0;

 protected:
  ~IAddIn() = default;
};

/// {8D2B6A14-0C7F-4B35-A6E9-51D30F94C27B}
constexpr IID IID_IAddIn = {
    0x8D2B6A14, 0x0C7F, 0x4B35, {0xA6, 0xE9, 0x51, 0xD3, 0x0F, 0x94, 0xC2, 0x7B}};

}  // namespace tamrikon
