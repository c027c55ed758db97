import QtQuick
import Kavor.Screens
import Kavor.Ui

// Name, password, and what one can do with them.
FocusScope {
    id: form

    required property LoginViewController controller

    // Where typing goes on: the first empty field, or the button when nothing is missing.
    function focusFirstEmpty(): void {
        if (controller.email === "")
            emailField.forceActiveFocus();
        else if (controller.password === "")
            passwordField.forceActiveFocus();
        else
            loginButton.forceActiveFocus();
    }

    implicitHeight: column.implicitHeight
    Component.onCompleted: focusFirstEmpty()

    Connections {
        target: form.controller

        function onFieldsChanged(): void {
            if (emailField.text !== form.controller.email)
                emailField.text = form.controller.email;
            if (passwordField.text !== form.controller.password)
                passwordField.text = form.controller.password;
            if (loginButton.activeFocus) // what it waited for may be gone
                form.focusFirstEmpty();
        }
        function onPasswordResigned(): void {
            if (passwordField.activeFocus)
                loginButton.forceActiveFocus();
        }
    }

    Column {
        id: column

        width: parent.width
        spacing: Theme.spaceL

        Row {
            spacing: Theme.spaceL

            // Takes no touches.
            Artwork {
                objectName: "logoIconButton"
                width: 64
                height: 64
                name: "logo"
            }
            Column {
                anchors.verticalCenter: parent.verticalCenter
                spacing: 2

                Text {
                    text: "Kavor"
                    color: Theme.bottle
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontDisplay
                    font.weight: Font.Bold
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                Text {
                    text: "Inicia sesión para continuar"
                    color: Theme.mutedInk
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                }
            }
        }
        TextRow {
            id: emailField

            objectName: "emailTextField"
            width: parent.width
            label: "Usuario"
            icon: "user"
            inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
            onEdited: (text) => form.controller.email = text
            onAccepted: passwordField.forceActiveFocus()
            Component.onCompleted: text = form.controller.email
        }
        TextRow {
            id: passwordField

            objectName: "passwordTextField"
            width: parent.width
            label: "Contraseña"
            icon: "lock"
            secret: true
            inputMethodHints: Qt.ImhHiddenText | Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
            onEdited: (text) => form.controller.password = text
            onAccepted: form.controller.loginAction()
            Component.onCompleted: text = form.controller.password
        }
        SwitchRow {
            objectName: "rememberPasswordSwitch"
            width: parent.width
            label: "Recordar contraseña"
            checked: form.controller.rememberPassword
            onToggled: (checked) => form.controller.rememberPasswordSwitchValueChangedAction(checked)
        }
        AppButton {
            id: loginButton

            objectName: "loginButton"
            width: parent.width
            text: "Iniciar sesión"
            busy: form.controller.veil.visible
            enabled: form.controller.loginEnabled || busy
            onClicked: form.controller.loginAction()
        }
        Flow {
            width: parent.width
            spacing: Theme.spaceS

            AppButton {
                objectName: "resetPasswordButton"
                kind: "plain"
                text: "¿Ha olvidado su contraseña?"
                onClicked: form.controller.resetPasswordAction()
            }
            AppButton {
                objectName: "activateUserButton"
                kind: "plain"
                text: "Activar usuario"
                onClicked: form.controller.activateUserAction()
            }
        }
    }
}
