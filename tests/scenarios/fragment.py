"""Compares answers of the driver with fragments: see the end of README.md."""

MORE = "…"


def difference(answer, fragment, place=""):
    """Where and how an answer differs from a fragment; None when it contains the fragment."""
    if isinstance(fragment, dict) and isinstance(answer, dict):
        return difference_in_object(answer, fragment, place)
    if isinstance(fragment, list) and isinstance(answer, list):
        return difference_in_array(answer, fragment, place)
    return None if fits(answer, fragment) else f"{place or 'the answer'} is {answer!r}, not {fragment!r}"


def find_somewhere(answer, fragment):
    """The first object at any depth of the answer that contains the fragment; None when there is none."""
    if isinstance(answer, dict) and difference(answer, fragment) is None:
        return answer
    inner = answer.values() if isinstance(answer, dict) else answer if isinstance(answer, list) else ()
    return next((found for each in inner if (found := find_somewhere(each, fragment)) is not None), None)


def difference_in_object(answer, fragment, place):
    for key, wanted in fragment.items():
        if key not in answer:
            return f"{place}.{key} is missing in {answer!r}"
        if found := difference(answer[key], wanted, f"{place}.{key}"):
            return found
    return None


def difference_in_array(answer, fragment, place):
    if fragment and fragment[0] == MORE:
        return difference_in_sequence(answer, fragment[1:], place)
    if len(answer) != len(fragment):
        return f"{place} is {answer!r}, not {fragment!r}"
    each = (difference(*pair, f"{place}[{i}]") for i, pair in enumerate(zip(answer, fragment)))
    return next(filter(None, each), None)


def difference_in_sequence(answer, wanted, place):
    found = 0
    for element in answer:
        if found < len(wanted) and difference(element, wanted[found]) is None:
            found += 1
    return None if found == len(wanted) else f"{place} has no {wanted[found]!r} in its place: {answer!r}"


def fits(answer, wanted):
    if isinstance(answer, str) and isinstance(wanted, str):
        return fits_text(answer, wanted)
    # For Python, False is 0 and True is 1.
    return isinstance(answer, bool) == isinstance(wanted, bool) and answer == wanted


def fits_text(text, pattern):
    inner = pattern.removeprefix(MORE).removesuffix(MORE)
    if pattern.startswith(MORE) and pattern.endswith(MORE):
        return inner in text
    if pattern.startswith(MORE):
        return text.endswith(inner)
    return text.startswith(inner) if pattern.endswith(MORE) else text == pattern
