"""The dialogs, the message box and the spin box."""

from host import Host, check, check_equal, middle
from window_scenes import by, moved

SHELL = "QZelDialog"
SLIDER_DISTANCE = 3
SLIDER_HEIGHT = 20


def title_bar(window):
    return window.named("wgt_TitleBar")


# Scene: window class, and where its strip can be taken: the widget, and how far from its left end.
STRIPS = {
    "shell": (SHELL, title_bar, (20, 150)),
    "setpassword": ("QZelEncDialog", title_bar, (20, 150)),
    "password": ("QZelPwdInputDialog", title_bar, (20, 150)),
    "foldername": ("QZelFolderNameDialog", title_bar, (20, 150)),
    "filedialog": ("QZelFileDialog", title_bar, (20, 500)),
    "filemanager": ("QZelFileManagerWidget", title_bar, (20, 500)),
    "message": ("QTarnKit::QUIMessageBox",
                lambda window: window.of_class("QWidget"), (20, 150)),
}


def strips(session, command):
    """Every dialog moves by its strip: by the title's text and by the free part alike."""
    for scene, (window, pick, places) in STRIPS.items():
        with Host(session, command, scene) as host:
            host.open_dialog(window)
            for place in places:
                drag_strip(host, window, pick, place, (55, 35))
            start = host.window(window).rect
            strip = host.widget(window, pick)
            host.press((strip.rect[0] + places[0], strip.middle[1]), "right")
            host.drag_to(by(host.display.position, 30, 30))
            host.release("right")
            check_equal(host.window(window).rect, start, scene + " after the right button")


def drag_strip(host, window, pick, place, delta):
    start = host.window(window).rect
    strip = host.widget(window, pick)
    position = (strip.rect[0] + place, strip.middle[1])
    host.press(position)
    host.drag_to(by(position, *delta))
    host.release()
    check_equal(host.window(window).rect, moved(start, *delta), "%s dragged" % window)


def edges(session, command):
    """The shell stops at the edges of the available area, and its button takes the whole screen."""
    left, top, width, height = session.available
    screen_width, screen_height = session.display.size()
    with Host(session, command, "shell") as host:
        start = host.open_dialog(SHELL).rect
        # One pixel is left free at the right and at the bottom.
        last = (left + width - 1 - start[2], top + height - 1 - start[3])
        for corner, expected in (((0, 0), (left, top)),
                                 ((screen_width - 1, screen_height - 1), last),
                                 ((screen_width - 1, 0), (last[0], top)),
                                 ((0, screen_height - 1), (left, last[1]))):
            host.press(host.widget(SHELL, title_bar).middle)
            host.drag_to(corner)
            host.release()
            check_equal(host.window(SHELL).rect[:2], expected, "the corner at %s,%s" % corner)

        start = host.window(SHELL).rect
        whole = (0, 0, screen_width, screen_height)
        for rect, state in ((whole, "maximized"), (start, "normal")):
            host.click_widget(SHELL, lambda window: window.named("btn_Max"))
            host.wait(lambda report: report.window(SHELL).rect == rect, "the size %s" % state)
            check_equal(host.window(SHELL).rect, rect, "the rectangle " + state)
            check_equal(host.window(SHELL).named("btn_Max").windowState, state, "the property")


def spinbox(session, command):
    """The slider appears under the focused box, works without taking the focus, goes with it."""
    with Host(session, command, "spinbox") as host:
        host.window("owner")
        check(not host.report().window("QSlider"), "the slider is shown without focus")
        host.click_widget("owner", lambda window: window.named("qt_spinbox_lineedit"))
        slider = host.window("QSlider")
        x, y, width, height = host.widget("owner", lambda window: window.of_class("QSpinBox")).rect
        check_equal(slider.rect, (x, y + height + SLIDER_DISTANCE, width, SLIDER_HEIGHT),
                    "the slider's rectangle")

        host.display.type("42")
        wait_value(host, lambda value: value == 42)
        handle = host.window("QSlider").widgets[0].handle
        position = middle(handle)
        host.press(position)
        host.drag_to(by(position, width // 4, 0))
        host.release()
        wait_value(host, lambda value: 60 <= value <= 75)
        host.display.type("7")
        wait_value(host, lambda value: value == 100 or value % 10 == 7)
        check(host.report().window("QSlider"), "the slider has gone")

        host.click_widget("owner", lambda window: window.named("other"))
        host.gone("QSlider")
        host.click_widget("owner", lambda window: window.named("qt_spinbox_lineedit"))
        host.window("QSlider")
        host.display.type("\t")
        host.gone("QSlider")


def wait_value(host, condition):
    host.wait(lambda report: condition(report.window("owner").of_class("QSpinBox").value),
              "the spin box's value")


def edit(index):
    return lambda window: window.of_class("QLineEdit", index)


def passwords(session, command):
    """Both fields take letters and digits only, 15 of them, and show them only on demand."""
    dialog = "QZelEncDialog"
    with Host(session, command, "setpassword") as host:
        host.open_dialog(dialog)
        host.click_widget(dialog, lambda window: window.button("Confirm"))
        wait_message(host, dialog, "pwdEmpty")
        host.type_into(dialog, edit(0), "aB-3 x!Zcdefghijklmnop")
        wait_text(host, dialog, 0, "aB3xZcdefghijkl")
        host.type_into(dialog, edit(1), "ab3xzcdefghijkl")
        wait_text(host, dialog, 1, "ab3xzcdefghijkl")
        for index in (0, 1):
            check_masking(host, dialog, index)
        host.click_widget(dialog, lambda window: window.button("Confirm"))
        wait_message(host, dialog, "pwdDifferent")
        check(not host.events_named("finished"), "the dialog has closed")

        host.double_click(host.widget(dialog, edit(1)).middle)
        host.display.type("aB3xZcdefghijkl")
        wait_text(host, dialog, 1, "aB3xZcdefghijkl")
        host.click_widget(dialog, lambda window: window.button("Confirm"))
        check_equal(host.wait_event("passwordSet")["password"], "aB3xZcdefghijkl", "the password")
        check_equal(host.wait_event("finished")["result"], 1, "the result")

    dialog = "QZelPwdInputDialog"
    with Host(session, command, "password") as host:
        host.open_dialog(dialog)
        host.type_into(dialog, edit(0), "Secret7")
        wait_text(host, dialog, 0, "Secret7")
        host.click_widget(dialog, lambda window: window.button("Confirm"))
        check_equal(host.wait_event("passwordEntered")["password"], "Secret7", "the password")
        check(host.window(dialog), "the dialog has closed")
        host.click_widget(dialog, lambda window: window.named("btn_Close"))
        check_equal(host.wait_event("finished")["result"], 0, "the result")


def check_masking(host, dialog, index):
    field = host.widget(dialog, edit(index))
    check(set(field.shown) != set(field.text) and len(set(field.shown)) == 1, "not masked")
    box = host.widget(dialog, lambda window: window.of_class("QCheckBox", index))
    host.click(middle(box.handle))
    host.wait(lambda report: edit(index)(report.window(dialog)).shown == field.text, "clear text")


def wait_text(host, window, index, text):
    host.wait(lambda report: edit(index)(report.window(window)).text == text, "the text " + text)


def wait_message(host, dialog, text):
    host.wait(lambda report: report.window(dialog).named("lbl_Msg").text == text,
              "the message " + text)
