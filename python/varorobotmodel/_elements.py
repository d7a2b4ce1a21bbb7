"""The sequences that models answer with."""

from __future__ import annotations

import typing
from collections import abc
from typing import Any, List, Optional, Tuple, Union, overload

from ._errors import UnknownNameError

Element = typing.TypeVar("Element")


class Elements(Tuple[Element, ...], typing.Generic[Element]):
    """A tuple of elements that also finds them by their names.

    ``elements[0]`` and ``elements[1:3]`` work as for any tuple, ``elements["HeadYaw"]`` is the first element of that
    name, and ``"HeadYaw" in elements`` says whether there is one.
    """

    __slots__ = ()

    @property
    def names(self) -> List[str]:
        """The names of the elements, in their order."""
        return [element.name for element in self]  # type: ignore[attr-defined]

    def get(self, name: str, default: Optional[Element] = None) -> Optional[Element]:
        """The first element of that name, or ``default``."""
        return next(self._named(name), default)

    def _named(self, name: str) -> abc.Iterator[Element]:
        return (element for element in self if element.name == name)  # type: ignore[attr-defined]

    @overload  # type: ignore[override]
    def __getitem__(self, key: Union[int, str]) -> Element: ...
    @overload
    def __getitem__(self, key: slice) -> Elements[Element]: ...
    def __getitem__(self, key: Any) -> Any:
        if isinstance(key, str):
            for element in self._named(key):
                return element
            raise UnknownNameError.among(key, self.names)
        if isinstance(key, slice):
            return Elements(super().__getitem__(key))
        return super().__getitem__(key)

    def __contains__(self, key: object) -> bool:
        if isinstance(key, str):
            return any(True for _ in self._named(key))
        return super().__contains__(key)

    def __repr__(self) -> str:
        return f"Elements({list(self)!r})"
