// SPDX-License-Identifier: MIT
// What follows the imports, which each release of the shell has in its own words.

const INTERFACE = `
<node>
  <interface name="org.quorvane.Probe">
    <method name="Windows"><arg type="s" direction="out"/></method>
    <method name="Notifications"><arg type="s" direction="out"/></method>
    <method name="Evaluate">
      <arg type="s" direction="in"/>
      <arg type="s" direction="out"/>
    </method>
  </interface>
</node>`;

class Probe {
    Windows() {
        const windows = global.get_window_actors().map(actor => actor.meta_window);
        return JSON.stringify(windows.filter(window => !window.is_override_redirect()).map(describe));
    }

    Notifications() {
        const shown = Main.messageTray.getSources().flatMap(source => source.notifications);
        return JSON.stringify(shown.map(note => [note.title, note.body ?? note.bannerBodyText]));
    }

    Evaluate(code) {
        // For what a single test asks for: where an indicator stands, for instance.
        return JSON.stringify(eval(code) ?? null);
    }
}

function describe(window) {
    const frame = window.get_frame_rect();
    return {
        title: window.get_title(),
        pid: window.get_pid(),
        isX11: window.get_client_type() === Meta.WindowClientType.X11,
        frame: [frame.x, frame.y, frame.width, frame.height],
        isAbove: window.is_above(),
        isOnAllWorkspaces: window.is_on_all_workspaces(),
        isInTaskbar: !window.is_skip_taskbar(),
        hasFocus: window === global.display.focus_window,
        wantsAttention: window.demands_attention || window.urgent,
    };
}

class ProbeExtension {
    enable() {
        this._exported = Gio.DBusExportedObject.wrapJSObject(INTERFACE, new Probe());
        // The overview that a session starts with would take the keys.
        if (Main.layoutManager._startingUp) {
            Main.sessionMode.hasOverview = false;
            const connection = Main.layoutManager.connect('startup-complete', () => {
                Main.layoutManager.disconnect(connection);
                Main.sessionMode.hasOverview = true;
                this._appear();
            });
        } else {
            this._appear();
        }
    }

    disable() {
        this._exported.unexport();
        if (this._name)
            Gio.bus_unown_name(this._name);
    }

    /** On the bus from the moment at which the desktop is usable. */
    _appear() {
        this._exported.export(Gio.DBus.session, '/org/quorvane/Probe');
        this._name = Gio.bus_own_name(
            Gio.BusType.SESSION, 'org.quorvane.Probe', 0, null, null, null);
    }
}
