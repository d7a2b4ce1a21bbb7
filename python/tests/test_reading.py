"""Loading, checking and converting descriptions, and what is said of bad ones."""

import json
import pickle
import subprocess

import pytest

import varorobotmodel as vr

BROKEN = """<robot name="r">
  <link name="a"/>
  <joint name="j" type="fixed"><parent link="a"/><child link="b"/></joint>
</robot>
"""


def test_loads_what_is_like_a_path_and_texts_of_both_kinds(robots, tmp_path):
    path = robots / "minimal.xml"
    models = [vr.load(each) for each in (path, str(path), bytes(path))]
    models += [vr.loads(each) for each in (path.read_text(), path.read_bytes())]
    assert [model.links.names for model in models] == [["BaseLink", "TurnLink", "NodLink"]] * 5
    assert [model.file for model in models] == [str(path)] * 3 + [None] * 2
    assert models[0].text == path.read_text()
    strange = tmp_path / "Zwölf Ümläute\udcff.xml"
    strange.write_bytes(path.read_bytes())
    assert len(vr.load(strange).links) == 3


def test_reading_fails_as_open_does(tmp_path):
    with pytest.raises(FileNotFoundError) as caught:
        vr.load(tmp_path / "none.xml")
    assert caught.value.filename == tmp_path / "none.xml"
    with pytest.raises(IsADirectoryError):
        vr.check(tmp_path)
    with pytest.raises(OSError):
        vr.load("/dev/zero")  # which would never end
    for wrong in (3, None, ["a"]):
        with pytest.raises(TypeError):
            vr.load(wrong)
    with pytest.raises(ValueError):
        vr.load("a\0b")
    with pytest.raises(TypeError):
        vr.loads("no character: \udcff")


def test_refused_description_says_file_line_and_column(tmp_path):
    path = tmp_path / "broken.urdf"
    path.write_text(BROKEN)
    with pytest.raises(vr.DescriptionError) as caught:
        vr.load(path)
    error = caught.value
    assert isinstance(error, ValueError)
    assert str(error).startswith(f"{path}:3:")
    assert error.file == str(path)
    [finding] = error.errors
    assert finding in error.findings
    assert (finding.severity, finding.place.line) == (vr.Severity.ERROR, 3)
    assert str(finding).startswith(f"{path}:3:{finding.place.column}: error: ") and finding.code in str(finding)
    copy = pickle.loads(pickle.dumps(error))
    assert (str(copy), copy.findings) == (str(error), error.findings)
    with pytest.raises(vr.DescriptionError, match="^<string>:3:") as caught:
        vr.loads(BROKEN)
    assert caught.value.file is None
    with pytest.raises(vr.DescriptionError):
        vr.convert(path)


@pytest.mark.parametrize("text", ["", "x", b'<robot name="\xff\xfe"/>', b"\0", '<robot name="&bad;"/>', "<robot>" * 5000])
def test_no_text_does_harm(text):
    with pytest.raises(ValueError):
        vr.loads(text)


def test_what_no_model_can_be_built_of_has_findings_too():
    text = """<robotDescription name="r"><root name="Base"/>
        <sensor name="c" parent="Base" type="camera"/></robotDescription>"""
    with pytest.raises(vr.DescriptionError) as caught:
        vr.loads(text)
    assert caught.value.errors
    assert caught.value.findings == [f for f in vr.checks(text) if f in caught.value.findings]


def test_check_tells_what_the_tool_tells(robots, tool, tmp_path):
    broken = tmp_path / "broken.urdf"
    broken.write_text(BROKEN)
    for path in [*sorted(robots.glob("*.*")), broken]:
        printed = subprocess.run([tool, "check", "--json", path], capture_output=True, check=False).stdout
        expected = [(f["severity"], f["code"], f["line"], f["column"], f["message"]) for f in json.loads(printed)]
        found = [(str(f.severity), f.code, f.place.line, f.place.column, f.message) for f in vr.check(path)]
        assert found == expected, path


def test_rules_are_chosen_by_codes():
    text = """<robotDescription name="r"><root name="Base">
        <mass value="1" com="0 0 0" inertia="1 0 0 0 1 0 0 0 9"/></root></robotDescription>"""
    model = vr.loads(text)
    [finding] = [f for f in vr.lint(model) if "inertia" in f.code]
    assert vr.lint(model, only=[finding.code]) == [finding]
    assert finding not in vr.lint(model, without=[finding.code])
    assert finding not in vr.lint(model, tolerances={"inertia": 10.0})
    assert finding in vr.checks(text)
    with pytest.raises(ValueError):
        vr.lint(model, only=["no-rule"])
    with pytest.raises(ValueError, match="center_of_mass"):
        vr.lint(model, tolerances={"masses": 1.0})


def test_converts_between_dialects(robots):
    arm = robots / "mobile_arm.urdf"
    native = vr.convert(arm, to="native")
    again = vr.loads(native)
    assert again.dialect == "native"
    assert again.links.names == vr.load(arm).links.names
    assert vr.loads(vr.convert(again, to="urdf")).dialect == "urdf"
    humanoid = robots / "humanoid.xml"
    assert vr.convert(vr.loads(vr.convert(humanoid, to="urdf"))) == vr.convert(humanoid)
    with pytest.raises(ValueError, match="urdf"):
        vr.convert(arm, to="sdf")
