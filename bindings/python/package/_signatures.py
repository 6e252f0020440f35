"""Python signatures of the operations, for help() and inspect.signature()."""

import datetime
import inspect
from typing import Any

from ._values import Ref

PLAIN_TYPES = {
    "nothing": None,
    "string": str,
    "boolean": bool,
    "int16": int,
    "int32": int,
    "double": float,
    "date": datetime.datetime,
    "variant": Any,
    "object": Any,
    "record set": Any,
}


def annotation(type_name: str, class_name: str) -> Any:
    if class_name:
        from . import _cvdeveloper

        return getattr(_cvdeveloper, class_name, Any)
    return PLAIN_TYPES[type_name]


def argument_annotation(parameter: dict) -> Any:
    kind = annotation(parameter["type"], parameter["type_name"])
    if parameter["type"] == "date":
        kind = datetime.datetime | float
    return kind | Ref if parameter["in_out"] and kind is not Any else kind


def make_signature(operation: dict, with_self: bool) -> inspect.Signature:
    """The signature of a described operation, with the object in front or without."""
    parameters = []
    if with_self:
        parameters.append(inspect.Parameter("self", inspect.Parameter.POSITIONAL_ONLY))
    for parameter in operation["parameters"]:
        parameters.append(
            inspect.Parameter(
                parameter["name"],
                inspect.Parameter.POSITIONAL_OR_KEYWORD,
                default=parameter.get("default", inspect.Parameter.empty),
                annotation=argument_annotation(parameter),
            )
        )
    result = annotation(operation["result"], operation["result_name"])
    return inspect.Signature(parameters, return_annotation=result)
