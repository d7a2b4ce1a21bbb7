"""The search for meshes."""

import pytest

import varorobotmodel as vr


def test_looks_in_all_kinds_of_folders(tmp_path, monkeypatch):
    strange = "no UTF-8: \udcff"
    for folder in (strange, "path/deep/arm", "prefix/share/arm", "description"):
        (tmp_path / folder).mkdir(parents=True)
        (tmp_path / folder / "part.stl").touch()
    uri = "package://arm/part.stl"
    monkeypatch.setenv("ROS_PACKAGE_PATH", str(tmp_path / "path"))
    monkeypatch.setenv("AMENT_PREFIX_PATH", str(tmp_path / "prefix"))
    environment = vr.mesh_folders_from_environment()
    assert environment.package_path == [str(tmp_path / "path")] and environment.prefixes == [str(tmp_path / "prefix")]
    for folders, where in [
        (vr.MeshFolders(packages={"arm": tmp_path / strange}), strange),
        (vr.MeshFolders(package_path=environment.package_path), "path/deep/arm"),
        (vr.MeshFolders(prefixes=environment.prefixes), "prefix/share/arm"),
    ]:
        assert vr.MeshSearch(folders).find(uri).path == str(tmp_path / where / "part.stl")
    missed = vr.MeshSearch(vr.MeshFolders(description=tmp_path / "description")).find(uri)
    assert missed.path is None and "arm" in missed.reason and str(tmp_path / "description") in missed.looked_for[0]


def test_what_is_no_search_is_refused():
    for use in (
        lambda: vr.MeshSearch("robots"),
        lambda: vr.MeshSearch(vr.MeshFolders(packages={3: "a"})),
        lambda: vr.MeshSearch(vr.MeshFolders(package_path=[3])),
        lambda: vr.MeshSearch.__new__(vr.MeshSearch).find("a.stl"),
        lambda: vr.MeshSearch(vr.MeshFolders()).find(None),
    ):
        with pytest.raises((TypeError, AttributeError, RuntimeError)):
            use()
