import subprocess

from desktop import BUILD, ROOT, DesktopTest

# Those that come to rest, with the pointer far from the sensors.
EXAMPLES = "leeg", "deurbel", "relais", "cijferslot"


class Examples(DesktopTest):
    def test_the_window_shows_what_the_command_draws(self):
        for name in EXAMPLES:
            with self.subTest(example=name):
                path = ROOT / "examples" / f"{name}.vtx"
                veltrix = self.start(path, title=rf"Veltrix versie 2\.0 - {name}\.vtx")
                veltrix.leave()
                veltrix.shows("the example", self.render(path, ticks=100))
                veltrix.process.terminate()
                veltrix.process.wait()

    def test_the_door_bell_lights_its_lamp(self):
        path = ROOT / "examples/deurbel.vtx"
        veltrix = self.start(path, title=".* deurbel.vtx")
        veltrix.leave()
        veltrix.shows("the bell at rest", self.render(path))
        rung = self.files / "gebeld.vtx"
        script = self.files / "bel.csv"
        script.write_text("tick,control,value\n1,Drukknop 1,1\n")
        subprocess.run([BUILD / "veltrix-cli", "run", path, "--script", script, "--rows", "last",
                        "--save", rung], check=True, stdout=subprocess.DEVNULL)
        veltrix.click("Drukknop 1")
        veltrix.leave()
        veltrix.shows("the bell that rings", self.render(rung))
