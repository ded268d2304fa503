#!/usr/bin/python3
"""use_application.py <program>: uses the running sample application as assistive tools do."""

import pathlib
import shutil
import sys
import tempfile
import unittest

from assistive import running, wait

PROGRAM = sys.argv.pop(1)
PROJECTS = pathlib.Path(__file__).parents[2] / "apps/workstation/projects"
SEEN_ALREADY = "[Telemetry]\nEnabled=1\n[tour]\ndontShow=true\n"


class Application(unittest.TestCase):
    """Starts the application for every test, with settings and projects of its own."""

    settings = SEEN_ALREADY
    arguments = ()

    def setUp(self):
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        (folder / "Velmo").mkdir()
        (folder / "Velmo/workstation.conf").write_text(self.settings, encoding="utf-8")
        shutil.copytree(PROJECTS, folder / "projects")
        arguments = self.arguments or [folder / "projects"]
        self.app, self.process = self.enterContext(running(PROGRAM, *arguments, settings=folder))
        self.window = self.app.children[0]

    def assert_usable(self, root=None):
        self.assertEqual([], (root or self.app).faults())


class FirstStart(Application):
    settings = ""

    def test_consent_and_tour(self):
        consent = self.app.find("dialog", "Velmo: Feedback Program Settings")
        self.assert_usable(consent)
        choice = consent.find("radio button", "Yes, I am willing to participate and help improving Velmo")
        choice.press()
        wait("the choice", lambda: choice.has("CHECKED"))
        consent.find("push button", "OK").press()
        self.app.find_none("dialog", "Velmo: Feedback Program Settings")

        tour = self.window.find("dialog")
        self.assert_usable(tour)
        first = tour.name
        tour.find("push button", "Next").press()
        wait("the next step", lambda: tour.name != first)
        tour.find("push button", "Back").press()
        wait("the step before", lambda: tour.name == first)
        tour.find("check box").press()
        tour.find("push button", "Skip Onboarding").press()
        self.window.find_none("dialog")


class StartScreen(Application):
    def test_projects_and_scenes(self):
        self.window.find("list item", "Ticket hall study")
        self.assert_usable()
        project = self.window.find("list", "Projects").find("list item", "Harbour Quarter")
        project.press()
        wait("the project", lambda: project.has("SELECTED"))
        scenes = self.window.find("list", "Scenes")
        scene = scenes.find("list item", "Market morning")
        scene.press()
        wait("the scene", lambda: scene.has("SELECTED"))
        scenes.find("push button", "New scene").press()
        scenes.find("list item", "New scene")

        self.window.find("push button", "Delete scene").press()
        question = self.app.find("dialog")
        self.assert_usable(question)
        self.assertTrue(any("trash" in node.text for node in question.texts("Delete scene")))
        question.find("push button", "Cancel").press()
        self.app.find_none("dialog")

    def test_menus_and_window_buttons(self):
        bar = self.window.find("menu bar")
        menu = bar.find("menu item", "Help")
        menu.press()
        menu.find("menu item", "About").press()
        about = self.app.find("dialog")
        self.assert_usable(about)
        about.find("page tab", "Third-party notices").press()
        wait("the page", lambda: about.texts("Third-party notices"))
        about.find("push button", "Close").press()
        self.app.find_none("dialog")

        bar.find("push button", "Maximize").press()
        bar.find("push button", "Restore").press()
        bar.find("push button", "Maximize")
        bar.find("push button", "Close").press()
        self.assertEqual(0, self.process.wait())


class Editor(Application):
    def setUp(self):
        super().setUp()
        self.window.find("list", "Scenes").find("list item", "Ticket hall study").press()
        self.window.find("push button", "OPEN").press()
        self.timeline = self.window.find("frame", "Timeline")

    def choose(self, combo, choice):
        """As a user does: opens the menu and presses the item."""
        combo.press()
        menu = wait("the menu", lambda: combo.children)[0]
        next(item for item in menu.children if item.name == choice).press()
        wait("the choice", lambda: combo.text == choice and not combo.children)

    def set_value(self, node, value):
        node.set_value(value)
        wait(f"{node} {value}", lambda: abs(node.value - value) < 0.01)

    def test_values(self):
        self.assert_usable()
        self.set_value(self.timeline.find("slider", "Crop start"), 12)
        people = self.window.find("slider", "People")
        self.set_value(people, 40)
        self.set_value(people.find("spin button"), 25)
        wait("the slider", lambda: people.value == 25)
        people.find("push button", "Increase").press()
        wait("one step", lambda: people.value > 25)

        pie = self.window.find("chart", "Shares of the types")
        slices = [part for part in pie.children if part.role == "list item"]
        self.assertGreater(len(slices), 1)
        slices[1].press("Press")
        wait("the slice", lambda: slices[1].has("SELECTED"))
        share = pie.find("spin button", "Share")
        self.set_value(share, 12)
        wait("the share", lambda: "12" in slices[1].name)
        slices[1].press("Toggle")
        wait("the lock", lambda: slices[1].has("CHECKED") and pie.find("check box", "Lock").has("CHECKED"))

    def test_choices_and_panels(self):
        self.choose(self.window.find("combo box", "Colour by"), "Type")
        self.choose(self.window.find("combo box", "Goals"), "NO")
        curtain = self.window.find("push button", "Crowd")
        curtain.press()
        self.window.find_none("slider", "People")
        curtain.press()
        self.window.find("slider", "People")
        trails = self.window.find("radio button", "Where they come from")
        trails.press()
        wait("the mode", lambda: trails.has("CHECKED"))
        self.window.find("canvas").press()

        library = self.window.find("frame", "Library: Kinds")
        library.find("push button", "Detach or dock").press()
        floating = self.app.find("frame", "Library: Kinds")
        wait("the header", lambda: [part for part in floating.shown() if "Close" in part.actions])
        floating.find("push button", "Detach or dock").press()

        kinds = self.window.find("list", "Library")
        kinds.find("list item").press()
        wait("the kind", lambda: any(kind.has("SELECTED") for kind in kinds.children))
        menu = self.window.find("menu bar").find("menu item", "Window")
        menu.press()
        menu.find("menu item", "Library: Kinds").press()
        self.window.find_none("frame", "Library: Kinds")

    def test_tags(self):
        assigned = self.window.find("list", "Assigned")
        available = self.window.find("list", "Available")
        tag = wait("a tag", lambda: [tag for tag in assigned.search("list item") if tag.name != "Add"])[0].name
        assigned.find("list item", tag).find("push button", "Remove").press()
        available.find("list item", tag).press()
        assigned.find("list item", tag)


class Gallery(Application):
    arguments = ("--gallery",)

    def test_pages(self):
        pages = self.window.find("list", "Pages")
        for page in pages.children:
            page.press()
            wait(f"{page}", lambda page=page: page.has("SELECTED"))
            with self.subTest(page=page.name):
                self.assert_usable()


if __name__ == "__main__":
    unittest.main(verbosity=2, warnings="ignore")
