import QtQuick
import Kavor.Kit
import Kavor.Screens

// The details document of an activation.
FocusScope {
    id: view

    required property ActivationDetailViewController controller

    objectName: "activationDetail"
    Keys.onBackPressed: controller.document.dismissAction()

    WebPreviewView {
        anchors.fill: parent
        focus: true
        controller: view.controller.document
    }
}
