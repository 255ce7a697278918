// SPDX-License-Identifier: MIT
import Gio from 'gi://Gio';
import Meta from 'gi://Meta';

import * as Main from 'resource:///org/gnome/shell/ui/main.js';

export { ProbeExtension as default };

