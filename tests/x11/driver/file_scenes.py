"""The file dialog: its menus, its questions, and a whole save."""

import os

from host import Host, check, check_equal
from dialog_scenes import edit, wait_text
from window_scenes import by

FOLDER = "/root/zeltempfiles/ftp"
DIALOG = "QZelFileDialog"
MANAGER = "QZelFileManagerWidget"
ENCRYPTION = "QZelEncDialog"
NAME = "QZelFolderNameDialog"
BOX = "QTarnKit::QUIMessageBox"
MENU = "QMenu"


def tree(window):
    return window.named("treeV_FileTree")


def listing(window):
    return window.named("treeV_FileList")


def prepare(*names):
    """Fills the private folder; names with "/" at their end are folders."""
    if not os.environ.get("QTARNKIT_PRIVATE_ROOT"):
        raise RuntimeError("not in a private /root")
    for name in names:
        path = os.path.join(FOLDER, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        if not name.endswith("/"):
            with open(path, "w", encoding="ascii") as file:
                file.write("before\n")


def exists(name):
    return os.path.exists(os.path.join(FOLDER, name))


def item_middle(host, window, pick, text):
    return host.widget(window, lambda found: pick(found) and pick(found).item(text)).middle


def blank_of(view):
    """A point below the rows of a view."""
    x, y, width, height = view.rect
    return (x + width // 2, y + height - 30)


def open_menu(host, position, entries):
    host.click(position, "right")
    menu = host.window(MENU)
    check_equal(menu.widgets[0].item_texts(), entries, "the menu")


def choose(host, entry):
    host.click(host.window(MENU).widgets[0].item(entry).middle)
    host.gone(MENU)


def menus(session, command):
    """Right clicks on a folder, on a file and on blank space, and what is chosen there."""
    prepare("full/inside.txt", "empty/", "notes.txt")
    with Host(session, command, "filedialog") as host:
        host.open_dialog(DIALOG)
        open_menu(host, item_middle(host, DIALOG, tree, "empty"), ["new", "rename", "delete"])
        choose(host, "delete")
        host.wait(lambda report: not exists("empty"), "the folder's end")

        open_menu(host, blank_of(host.window(DIALOG).named("treeV_FileTree")), ["new"])
        choose(host, "new")
        host.window(NAME)
        host.type_into(NAME, edit(0), "fresh")
        wait_text(host, NAME, 0, "fresh")
        host.click_widget(NAME, lambda window: window.button("Confirm"))
        host.gone(NAME)
        host.wait(lambda report: exists("fresh"), "the new folder")

        host.click(item_middle(host, DIALOG, listing, "fresh"), "right")
        check(not host.report().window(MENU), "a menu over a folder in the listing")
        rename_file(host)


def rename_file(host):
    open_menu(host, item_middle(host, DIALOG, listing, "notes.txt"), ["rename"])
    choose(host, "rename")
    host.window(NAME)
    wait_text(host, NAME, 0, "notes.txt")
    host.double_click(by(host.widget(NAME, edit(0)).rect[:2], 20, 10))
    select_all_by_mouse(host)
    host.display.type("memo")
    wait_text(host, NAME, 0, "memo")
    host.click_widget(NAME, lambda window: window.button("Confirm"))
    host.gone(NAME)
    host.wait(lambda report: exists("memo.txt") and not exists("notes.txt"), "the new name")


def select_all_by_mouse(host):
    x, y, width, height = host.widget(NAME, edit(0)).rect
    host.press((x + width - 3, y + height // 2))
    host.drag_to((x + 2, y + height // 2))
    host.release()


def save_as(host, name):
    host.type_into(DIALOG, lambda window: window.named("let_FileName"), name)
    host.wait(lambda report: report.window(DIALOG).named("let_FileName").text == name, "the name")
    host.click_widget(DIALOG, lambda window: window.named("btn_OpenSave"))


def messages(session, command):
    """A question stands above its dialog and stays there, and blocks it."""
    prepare("report.txt")
    with Host(session, command, "save") as host:
        start = host.open_dialog(DIALOG).rect
        save_as(host, "report")
        check_above(host)
        # The dialog below neither comes forward nor moves.
        strip = host.window(DIALOG).named("wgt_TitleBar")
        host.display.move(strip.rect[0] + 20, strip.middle[1])
        host.display.press()
        host.display.move(strip.rect[0] + 35, strip.middle[1] + 15)
        host.display.release()
        # Events of a blocked window are dropped: what comes after them shows that they are through.
        host.point(host.window(BOX).middle)
        check_equal(host.window(DIALOG).rect, start, "the blocked dialog")
        check_above(host)
        if session.has_window_manager:
            check_above_others(host)

        host.click_widget(BOX, lambda window: window.button("No"))
        host.gone(BOX)
        check(host.window(DIALOG), "the dialog has gone")
        host.click_widget(DIALOG, lambda window: window.named("btn_OpenSave"))
        check_above(host)
        host.click_widget(BOX, lambda window: window.button("Yes"))
        check_equal(host.wait_event("saved")["path"], FOLDER + "/report.txt", "the path")
        host.gone(DIALOG)
    with open(os.path.join(FOLDER, "report.txt"), encoding="ascii") as file:
        check_equal(file.read(), "saved\n", "the overwritten file")

    with Host(session, command, "filemanager") as host:
        host.open_dialog(MANAGER)
        host.click_widget(MANAGER, lambda window: window.named("btn_Delete"))
        check_above(host, MANAGER, BOX)
        host.click_widget(BOX, lambda window: window.button("No"))
        host.gone(BOX)


def check_above(host, lower=DIALOG, upper=BOX):
    """The server has the upper window over the lower one, and that over the owner."""
    host.window(upper)
    if host.session.is_x:
        report = host.report()
        ids = [report.window(name).state["id"] for name in ("owner", lower, upper)]
        host.wait(lambda report: host.display.stacking(ids) == ids, upper + " above " + lower)


def check_above_others(host):
    """A new window of another application comes over the owner, not over what stays on top."""
    report = host.report()
    owner, dialog, box = (report.window(name).state["id"] for name in ("owner", DIALOG, BOX))
    other = host.display.open_window(report.window("owner").rect)
    host.wait(lambda report: host.display.rect(other), "the other window")
    order = [owner, other, dialog, box]
    host.wait(lambda report: host.display.stacking(order) == order, "the dialogs above others")
    host.display.close_window(other)


def save(session, command):
    """A save with password, from the button to the file, by mouse and keyboard alone."""
    prepare("sub/old.txt", "other/")
    with Host(session, command, "save") as host:
        host.open_dialog(DIALOG)
        host.double_click(item_middle(host, DIALOG, listing, "sub"))
        host.wait(lambda report: report.window(DIALOG).named("let_FilePath").text == "/sub/",
                  "the folder")
        host.click_widget(DIALOG, lambda window: window.named("btn_encOption"))
        check_above(host, DIALOG, ENCRYPTION)
        for index in (0, 1):
            host.type_into(ENCRYPTION, edit(index), "Secret7")
            wait_text(host, ENCRYPTION, index, "Secret7")
        host.click_widget(ENCRYPTION, lambda window: window.button("Confirm"))
        host.gone(ENCRYPTION)
        check_above(host)
        box = host.window(BOX)
        check_equal(box.of_class("QTextEdit").text,
                    "passwordSecret7\npasswordWarning", "the text")
        host.click_widget(BOX, lambda window: window.button("Confirm"))
        host.gone(BOX)

        save_as(host, "report")
        saved = host.wait_event("saved")
        check_equal((saved["path"], saved["password"], saved["filter"]),
                    (FOLDER + "/sub/report.txt", "Secret7", "Text (*.txt)"), "the result")
        host.gone(DIALOG)
    check(exists("sub/report.txt"), "the file is missing")
