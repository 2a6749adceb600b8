"""The component that the office asks for the worksheet functions."""

import unohelper
from com.sun.star.lang import IllegalArgumentException
from korvel import XFunctions

from korvelcalc import cells, worksheet

NAME = "korvel"


def method(function, is_table):
    """A function as the office calls it: what it raises becomes an error value."""

    def called(self, *arguments):
        try:
            return cells.answer(function(*arguments))
        except cells.Refused as error:
            raise IllegalArgumentException(str(error), self, 0) from None
        except cells.Failed:
            return cells.failure(is_table)

    return called


class Functions(unohelper.Base, XFunctions):
    """The methods of XFunctions, one for each worksheet function."""

    def __init__(self, context):
        self.context = context


for name, is_table in worksheet.FUNCTIONS.items():
    setattr(Functions, name.lower(), method(getattr(worksheet, name), is_table))

g_ImplementationHelper = unohelper.ImplementationHelper()
g_ImplementationHelper.addImplementation(Functions, NAME, ("com.sun.star.sheet.AddIn",))
