"""The exceptions."""

from __future__ import annotations

from collections import abc
from typing import List, Optional, Tuple

from ._core import closest_word
from ._enums import Severity
from ._values import Finding


class DescriptionError(ValueError):
    """A description that is refused, or that no model can be built of.

    Its text is the first error with its place, as ``robot.urdf:3:5: There is no link "arm".``
    """

    findings: List[Finding]  #: all findings of the text, warnings and notes included, in the order of their places
    file: Optional[str]  #: the file that was loaded; None for a text

    def __init__(self, findings: abc.Iterable[Finding], file: Optional[str] = None) -> None:
        self.findings = list(findings)
        self.file = file
        super().__init__(self._summary())

    @property
    def errors(self) -> List[Finding]:
        """Those of the findings for which the description is refused."""
        return [finding for finding in self.findings if finding.severity is Severity.ERROR]

    def _summary(self) -> str:
        if not self.errors:
            return "The description is refused."
        first, *others = self.errors
        more = f" (and {len(others)} more)" if others else ""
        hint = f"\n    {first.hint}" if first.hint else ""
        return f"{first.place}: {first.message}{more}{hint}"

    def __reduce__(self) -> Tuple[type, Tuple[List[Finding], Optional[str]]]:
        return type(self), (self.findings, self.file)


class UnknownNameError(KeyError):
    """A name that nothing is called by. Its text says what may have been meant."""

    name: str  #: what was looked for

    def __init__(self, name: str, message: str) -> None:
        super().__init__(name, message)
        self.name = name

    @classmethod
    def among(cls, name: str, names: abc.Iterable[str], what: str = "element") -> UnknownNameError:
        """With the closest of the names that there are."""
        close = closest_word(name, list(names))
        hint = f' Did you mean "{close}"?' if close else ""
        return cls(name, f'There is no {what} "{name}".{hint}')

    def __str__(self) -> str:
        return str(self.args[1])
