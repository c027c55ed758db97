import QtQuick
import QtQuick.Layouts
import Kavor.Ui
import Kavor.Kit
import Kavor.Screens

// When the promotion holds, and on which days the online menu shows it.
Card {
    id: card

    required property PromotionValidityForm form

    objectName: "vigenciaStackView"

    SectionTitle { width: parent.width; text: "Vigencia"; icon: "calendar" }

    GridLayout {
        width: parent.width
        columns: width < 420 ? 1 : 2
        columnSpacing: Theme.spaceM
        rowSpacing: Theme.spaceM

        DateRow {
            objectName: "dateFromTextView"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.alignment: Qt.AlignTop
            label: "Desde"
            text: card.form.dateFrom
            today: card.form.today
            onDone: (date) => card.form.doneActionFrom(date)
        }
        DateRow {
            objectName: "dateToTextView"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.alignment: Qt.AlignTop
            label: "Hasta"
            text: card.form.dateTo
            error: card.form.dateToError
            today: card.form.today
            minimum: card.form.dateFrom
            onDone: (date) => card.form.doneActionTo(date)
        }
    }
    SwitchRow {
        objectName: "showMenuSwitch"
        width: parent.width
        label: "Mostrar en la carta online"
        help: card.form.showMenu ? "Se muestra: " + card.form.daysText : ""
        checked: card.form.showMenu
        onToggled: (on) => card.form.switchShowMenu(on)
    }
    AppButton {
        objectName: "configureDays"
        width: parent.width
        kind: "secondary"
        icon: card.form.visualizationDaysVisible ? "chevron-up" : "calendar"
        text: card.form.visualizationDaysVisible ? "Ocultar los días" : "Días: " + card.form.daysText
        onClicked: card.form.visualizationDaysVisible ? card.form.closeConfigureDays() : card.form.configureDays()
    }
    Column {
        objectName: "visualizationDaysView"
        width: parent.width
        visible: card.form.visualizationDaysVisible
        spacing: Theme.spaceM

        HelpText {
            objectName: "messageConfigurationDaysLabel"
            width: parent.width
            text: card.form.messageConfigurationDaysLabel
        }
        RowLayout {
            width: Math.min(parent.width, 400)
            spacing: 0

            Repeater {
                model: [["L", "Lunes"], ["M", "Martes"], ["X", "Miércoles"], ["J", "Jueves"], ["V", "Viernes"],
                        ["S", "Sábado"], ["D", "Domingo"]]

                Tappable {
                    id: day

                    required property int index
                    required property var modelData
                    readonly property bool on: card.form.days[index]

                    objectName: "showPromotionDay" + (index + 1)
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    accessibleName: modelData[1]
                    Accessible.role: Accessible.CheckBox
                    Accessible.checkable: true
                    Accessible.checked: on
                    onClicked: card.form.toggleDay(index)

                    background: Item {
                        Rectangle {
                            anchors.centerIn: parent
                            width: Math.min(44, parent.width - 2)
                            height: width
                            radius: width / 2
                            color: day.on ? Theme.bottle : day.down ? Theme.hairline : Theme.surface
                            border.width: day.on ? 0 : 1
                            border.color: day.hot ? Theme.mutedInk : Theme.hairline

                            FocusRing { shown: day.visualFocus; corner: parent.radius }
                        }
                    }
                    contentItem: Text {
                        horizontalAlignment: Text.AlignHCenter
                        verticalAlignment: Text.AlignVCenter
                        text: day.modelData[0]
                        color: day.on ? Theme.inverseInk : Theme.mutedInk
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBody
                        font.weight: Font.Bold
                    }
                }
            }
        }
        Flow {
            width: parent.width
            spacing: Theme.spaceS

            Chip {
                objectName: "chooseWorkdays"
                tappable: true
                selected: card.form.daysText === text
                text: "Entre semana"
                onClicked: card.form.chooseWorkdays()
            }
            Chip {
                objectName: "chooseWeekend"
                tappable: true
                selected: card.form.daysText === text
                text: "Fin de semana"
                onClicked: card.form.chooseWeekend()
            }
            Chip {
                objectName: "chooseAllDays"
                tappable: true
                selected: card.form.daysText === "Todos los días"
                text: "Todos"
                onClicked: card.form.chooseAllDays()
            }
        }
    }
}
