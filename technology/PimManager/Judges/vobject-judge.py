#!/usr/bin/python3
"""vobject-judge.py: prints what vobject reads in vCards. It uses Debian's interpreter, as vobject is a Debian package."""

import hashlib
import json
import sys

import vobject

NAME_PARTS = ["family", "given", "additional", "prefix", "suffix"]
ADDRESS_PARTS = {"postOfficeBox": "box", "extended": "extended", "street": "street", "locality": "city",
                 "region": "region", "postalCode": "code", "country": "country"}


def text_of(value):
    return ",".join(value) if isinstance(value, list) else value


def values(card, *names):
    return [line.value for name in names for line in card.contents.get(name, [])]


def name_of(card):
    names = values(card, "n")
    return {part: text_of(getattr(names[0], part)) if names else "" for part in NAME_PARTS}


def address_of(value):
    return {part: text_of(getattr(value, theirs)) for part, theirs in ADDRESS_PARTS.items()}


def picture_of(value):
    if isinstance(value, bytes):
        return {"size": len(value), "sha1": hashlib.sha1(value).hexdigest()}
    return {"address": value}


def card_of(card):
    return {"formattedNames": values(card, "fn"),
            "name": name_of(card),
            "numbers": values(card, "tel"),
            "mails": values(card, "email"),
            "addresses": [address_of(value) for value in values(card, "adr")],
            "notes": values(card, "note"),
            "birthdays": values(card, "bday"),
            "anniversaries": values(card, "anniversary", "x-anniversary"),
            "photos": [picture_of(value) for value in values(card, "photo")]}


def read(text):
    try:
        return [card_of(card) for card in vobject.readComponents(text, allowQP=True)]
    except Exception as error:  # whatever it throws is its answer
        return {"error": f"{type(error).__name__}: {error}"}


for head in sys.stdin.buffer:
    block = sys.stdin.buffer.read(int(head))
    print(json.dumps(read(block.decode())), flush=True)
