pragma Singleton

import QtQuick

// Colours, sizes and durations that every screen shares. AppWindow keeps windowWidth and windowHeight.
QtObject {
    // Grounds
    readonly property color paper: "#FAF6EE"
    readonly property color surface: "#FFFDF8"
    readonly property color sunken: "#F2ECDF"
    readonly property color hairline: "#E6DFD1"
    readonly property color scrim: "#8C14201B"

    // Brand
    readonly property color bottle: "#123F31"
    readonly property color bottleDark: "#0C2E24"
    readonly property color bottleLight: "#1D5543"
    readonly property color bottleTint: "#E4EDE6"
    readonly property color amber: "#E0A126"
    readonly property color amberDark: "#8A5D06"
    readonly property color amberTint: "#FBF0D6"

    // Text
    readonly property color ink: "#20262B"
    readonly property color mutedInk: "#6B7280"
    readonly property color inverseInk: "#FBF7EE"
    readonly property color inverseMuted: "#B9CBC1"

    // States
    readonly property color danger: "#D64545"
    readonly property color dangerDark: "#A92F2F"
    readonly property color dangerTint: "#FBE9E6"
    readonly property color success: "#1F7A4D"
    readonly property color successTint: "#E0F1E6"
    readonly property color synced: Qt.rgba(0.3, 1, 0.53, 1)
    readonly property color local: "#FFB600"
    readonly property color pending: "#FF4A4A"

    // Type
    readonly property string fontFamily: "Roboto"
    readonly property int fontSmall: 13
    readonly property int fontBody: 15
    readonly property int fontLarge: 17
    readonly property int fontTitle: 22
    readonly property int fontDisplay: 28

    // Space and shape
    readonly property int unit: 4
    readonly property int spaceXS: 4
    readonly property int spaceS: 8
    readonly property int spaceM: 12
    readonly property int spaceL: 16
    readonly property int spaceXL: 24
    readonly property int spaceXXL: 32
    readonly property int radius: 12
    readonly property int touch: 48
    readonly property int pageMargin: compact ? spaceL : spaceXL
    readonly property int maximumContentWidth: 960

    // Motion, in milliseconds
    readonly property int fast: 120
    readonly property int normal: 200
    readonly property int slow: 320

    // Window
    property real windowWidth: 1024
    property real windowHeight: 768
    readonly property bool compact: windowWidth < 600
    readonly property bool portrait: windowHeight > windowWidth

    // Ground and text colour of a tone: "neutral", "bottle", "amber", "danger", "success".
    function toneGround(tone: string): color {
        switch (tone) {
        case "bottle": return bottleTint;
        case "amber": return amberTint;
        case "danger": return dangerTint;
        case "success": return successTint;
        }
        return sunken;
    }
    function toneInk(tone: string): color {
        switch (tone) {
        case "bottle": return bottle;
        case "amber": return amberDark;
        case "danger": return dangerDark;
        case "success": return success;
        }
        return ink;
    }
    function toneStrong(tone: string): color {
        switch (tone) {
        case "bottle": return bottle;
        case "danger": return danger;
        case "success": return success;
        }
        return amber;
    }
}
