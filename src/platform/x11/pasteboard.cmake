# SPDX-License-Identifier: MIT
# The pasteboard's part of this library.
pkg_check_modules(QUORVANE_XCB_SYNC REQUIRED IMPORTED_TARGET xcb-sync)

target_link_libraries(PkgConfig::QUORVANE_XCB INTERFACE PkgConfig::QUORVANE_XCB_SYNC)

set(QUORVANE_X11_PASTEBOARD_SOURCES
    X11ClipboardHandOver.cpp
    X11ClipboardLoan.cpp
    X11HiddenWindow.cpp
    X11LentData.cpp
    X11Pasteboard.cpp
    X11PasteboardSave.cpp
    X11PlainText.cpp
    X11PropertyValue.cpp
    X11QtClipboard.cpp
    X11SelectionContent.cpp
    X11SelectionConversion.cpp
    X11SelectionDelivery.cpp
    X11SelectionInbox.cpp
    X11SelectionOwner.cpp
    X11SelectionSave.cpp
    X11SelectionTargets.cpp
    X11ServerClock.cpp
    X11WindowWatch.cpp)

set(QUORVANE_X11_PASTEBOARD_HEADERS
    X11ClipboardHandOver.h
    X11ClipboardLoan.h
    X11Events.h
    X11HiddenWindow.h
    X11LentData.h
    X11Pasteboard.h
    X11PasteboardSave.h
    X11PlainText.h
    X11PropertyValue.h
    X11QtClipboard.h
    X11SelectionContent.h
    X11SelectionConversion.h
    X11SelectionDelivery.h
    X11SelectionInbox.h
    X11SelectionOwner.h
    X11SelectionSave.h
    X11SelectionTargets.h
    X11ServerClock.h
    X11WindowWatch.h)
