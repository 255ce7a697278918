// SPDX-License-Identifier: MIT
/* exported init */

const { Gio, Meta } = imports.gi;
const Main = imports.ui.main;

function init() {
    return new ProbeExtension();
}

