"""The files of the project as git sees them: tracked and new ones, without what is ignored."""

import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent


def git(*arguments, root=ROOT):
    """The output lines of a git command; None when it fails, as outside a working tree."""
    # The checkout may belong to another user than the one who runs the checks.
    command = ["git", "-c", "safe.directory=*", "-c", "core.quotePath=false", "-C", str(root), *arguments]
    try:
        done = subprocess.run(command, capture_output=True, encoding="utf-8", check=False)
    except FileNotFoundError:
        return None
    return done.stdout.splitlines() if done.returncode == 0 else None


def project_files(root=ROOT, suffixes=None):
    """All files as sorted paths relative to `root`; without git, whatever lies there outside build/."""
    names = git("ls-files", "--cached", "--others", "--exclude-standard", root=root)
    if names is None:
        names = [path.relative_to(root).as_posix() for path in root.rglob("*")]
        names = [name for name in names if not name.startswith((".git/", "build/"))]
    paths = sorted({pathlib.PurePosixPath(name) for name in names})
    return [path for path in paths if (suffixes is None or path.suffix in suffixes) and (root / path).is_file()]
