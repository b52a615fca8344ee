// SPDX-License-Identifier: LGPL-2.1-or-later
// The demo's view of an assistant: one page at a time, each element drawn by
// its typeID and bound both ways to the model's properties.
import QtQuick 2.12
import QtQuick.Controls 2.12
import QtQuick.Layouts 1.12
import Element 1.0

Rectangle {
    id: root
    color: "#f4f6f8"

    property int pageIndex: 0
    property var pages: assistant.content
    property var page: pageIndex < pages.length ? pages[pageIndex] : null
    // The model's kind code of the current page, read whenever the page changes.
    property int kind: 0
    property string savedText: ""

    onPageIndexChanged: assistant.setCurrentPageIndex(pageIndex)

    Connections {
        target: assistant
        function onDoSetCurrentPage(index) { root.pageIndex = index }
        function onMinimumSizeChanged(size) { root.kind = assistant.nisDefaultText }
        function onSettingsSaved(summary) { root.savedText = summary }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 8

        Label {
            text: qsTranslate("AssistantManager", "Step %1 of %2").arg(root.pageIndex + 1).arg(root.pages.length)
            color: "#5a6570"
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            color: "white"
            radius: 6
            border.color: "#d0d6dc"
            clip: true

            Flickable {
                id: flick
                anchors.fill: parent
                anchors.margins: 14
                contentWidth: width
                contentHeight: column.height
                boundsBehavior: Flickable.StopAtBounds

                ColumnLayout {
                    id: column
                    width: flick.width
                    spacing: 6

                    Repeater {
                        model: root.page ? root.page.elements : []

                        delegate: Loader {
                            id: slot
                            property var element: modelData
                            Layout.fillWidth: true
                            visible: element.visible
                            enabled: element.enabled
                            sourceComponent: {
                                switch (element.typeID) {
                                case Element.Title: return titleView
                                case Element.Spacer: return spacerView
                                case Element.Description: return descriptionView
                                case Element.DescriptionExtended: return descriptionView
                                case Element.Url: return urlView
                                case Element.SpinBox: return spinView
                                case Element.Switch: return switchView
                                case Element.Label: return labelView
                                case Element.Button: return buttonView
                                case Element.Buttons: return buttonsView
                                case Element.ComboBox: return comboView
                                default: return spacerView
                                }
                            }

                            Component {
                                id: titleView
                                Label {
                                    text: slot.element.title
                                    font.pixelSize: 22
                                    font.bold: true
                                    color: "#1d3557"
                                }
                            }
                            Component {
                                id: spacerView
                                Item { implicitHeight: slot.element.height !== undefined ? slot.element.height : 0 }
                            }
                            Component {
                                id: descriptionView
                                Label {
                                    text: slot.element.description
                                    wrapMode: Text.WordWrap
                                    color: "#333333"
                                }
                            }
                            Component {
                                id: urlView
                                Label {
                                    text: "<a href=\"" + slot.element.url + "\">" + slot.element.text + "</a>"
                                    textFormat: Text.RichText
                                }
                            }
                            Component {
                                id: labelView
                                Label {
                                    leftPadding: slot.element.xPos
                                    text: slot.element.labelText
                                    font.italic: true
                                    color: "#2a7f62"
                                }
                            }
                            Component {
                                id: spinView
                                RowLayout {
                                    Label { text: slot.element.spinText; Layout.preferredWidth: 130 }
                                    SpinBox {
                                        from: slot.element.spinFrom
                                        to: slot.element.spinTo
                                        stepSize: slot.element.step
                                        value: slot.element.spinValue
                                        editable: true
                                        onValueModified: slot.element.spinValue = value
                                    }
                                    Label { text: slot.element.iconText }
                                    Item { Layout.fillWidth: true }
                                }
                            }
                            Component {
                                id: switchView
                                Switch {
                                    text: slot.element.switchText
                                    checked: slot.element.status
                                    onToggled: slot.element.status = checked
                                }
                            }
                            Component {
                                id: comboView
                                RowLayout {
                                    Label { text: slot.element.labelText; Layout.preferredWidth: 130 }
                                    ComboBox {
                                        Layout.preferredWidth: 180
                                        model: slot.element.itemList
                                        currentIndex: slot.element.selectedIndex
                                        onActivated: slot.element.selectedIndex = index
                                        ToolTip.text: slot.element.helpText
                                        ToolTip.visible: hovered
                                    }
                                    Item { Layout.fillWidth: true }
                                }
                            }
                            Component {
                                id: buttonsView
                                RowLayout {
                                    spacing: slot.element.spacing
                                    Label { text: slot.element.iconText; Layout.preferredWidth: 130 }
                                    Repeater {
                                        model: slot.element.names
                                        Button {
                                            text: modelData
                                            checkable: true
                                            checked: index === slot.element.selected
                                            highlighted: checked
                                            onClicked: slot.element.selected = index
                                        }
                                    }
                                    Item { Layout.fillWidth: true }
                                }
                            }
                            Component {
                                id: buttonView
                                RowLayout {
                                    layoutDirection: slot.element.alignRight ? Qt.RightToLeft : Qt.LeftToRight
                                    Button {
                                        text: slot.element.buttonText
                                        onClicked: slot.element.elementClicked()
                                    }
                                    Label { text: slot.element.labelText }
                                    Item { Layout.fillWidth: true }
                                }
                            }
                        }
                    }

                    Label {
                        visible: root.kind === 2 && root.savedText.length > 0
                        text: qsTranslate("AssistantManager", "Saved: %1").arg(root.savedText)
                        wrapMode: Text.WordWrap
                        Layout.fillWidth: true
                        color: "#2a7f62"
                    }
                }
            }
        }

        RowLayout {
            Layout.fillWidth: true
            Button {
                text: qsTranslate("AssistantManager", "Back")
                leftPadding: 16
                rightPadding: 16
                enabled: root.pageIndex > 0
                onClicked: root.pageIndex -= 1
            }
            Button {
                text: qsTranslate("AssistantManager", "Reset")
                leftPadding: 16
                rightPadding: 16
                onClicked: assistant.resetView()
            }
            Item { Layout.fillWidth: true }
            Button {
                // On the closing page (the save page) the forward button saves.
                leftPadding: 16
                rightPadding: 16
                text: root.kind === 2 ? qsTranslate("AssistantManager", "Save")
                                      : qsTranslate("AssistantManager", "Next")
                highlighted: true
                enabled: root.kind === 2 || root.pageIndex + 1 < root.pages.length
                onClicked: root.kind === 2 ? assistant.save() : root.pageIndex += 1
            }
        }
    }
}
