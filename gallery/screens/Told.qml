// SPDX-License-Identifier: MIT
pragma Singleton
import QtQml

// What assistive programs are told of all screens.
QtObject {
    // Whether that which has the focus on a screen says so: not while the main menu lies over it and has the keys.
    property bool screenFocus: true
}
