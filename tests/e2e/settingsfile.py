"""Settings as the programs' own file holds them, made and compared without the programs."""

import itertools

SENSOR = ("DPI_VALUE", "DBCLICK_SPEED", "SCROLL_SPEED", "SENSITIVITY", "ADVANCED_SEN_X",
          "ADVANCED_SEN_Y")
FACTORY_SENSOR = (2, 10, 3, 6, 10, 10)
FACTORY_LIGHT = {"LED_COLOR_R": 255, "LED_COLOR_G": 60, "LED_COLOR_B": 0, "LED_INTENSITY": 1,
                 "LED_PULSATION": 1}
FACTORY_BUTTONS = (0x0001, 0x0002, 0x0006, 0x4010, 0x5007, 0x5011, 0x4001, 0x0005, 0x0004, 0x4003,
                   0x400F, 0x4014, 0x5014, 0x4005)


def factory_values():
    """What Restore Defaults gives to a profile; everything else in it stays."""
    buttons = {f"BUTTON_{number}": code for number, code in enumerate(FACTORY_BUTTONS, 1)}
    return dict(zip(SENSOR, FACTORY_SENSOR)) | FACTORY_LIGHT | buttons


def rich_settings():
    """Settings with every value set: no two profiles and no two macros are alike."""
    key_codes = itertools.count(3)

    def events(count):
        return "".join(f"{next(key_codes)},{1 + event % 2},{event}," for event in range(count))

    def macro(profile, slot):
        return {"MACRO_NAME": f"Macro {profile}/{slot} é<&>", "MODE": 1 + slot % 2,
                "MACRO_LOOP": slot, "bSTARTKEY": 1, "bSENDKEY": 1, "bLOOP": 1,
                "COPY_PASTER": f"text {profile}/{slot} €", "KEYMAP": events(slot % 7),
                "STARTKEY": events(2), "SENDKEY": events(2)}

    def profile(number):
        sensor = {key: 1 + (number + index) % 6 for index, key in enumerate(SENSOR)}
        light = {"LED_COLOR_R": 10 * number, "LED_COLOR_G": 20 * number, "LED_COLOR_B": 25 * number,
                 "LED_INTENSITY": number % 3, "LED_PULSATION": number % 4}
        buttons = {f"BUTTON_{button}": 0x4000 + number + button for button in range(1, 15)}
        character = {"REGION": number % 5, "SERVER": f"Server {number}", "NAME": f"Náme {number}",
                     "LEVEL": 70 + number, "CLASS": f"Class {number}", "RACE": f"/{number}.jpg"}
        macros = {f"MACRO_{slot}": macro(number, slot) for slot in range(1, 51)}
        return sensor | light | buttons | {"CHARACTER_INFO": character} | macros

    root = {"PROFILE_ID": 0, "POLLING_RATE": 2, "MACRODEL_CONFIRM": 1, "GAME_MODE": 0}
    return root | {f"PROFILE_{number}": profile(number) for number in range(1, 11)}


def changed(settings, **changes):
    """A copy with other values: changed(settings, PROFILE_2={"BUTTON_5": 4}, PROFILE_ID=1)."""
    values = {key: settings[key] | value if isinstance(value, dict) else value
              for key, value in changes.items()}
    return settings | values


def differences(found, expected, path=""):
    """Where two dictionaries differ, as {path: (found, expected)}."""
    result = {}
    for key in sorted(found.keys() | expected.keys()):
        here, there = found.get(key), expected.get(key)
        if isinstance(here, dict) and isinstance(there, dict):
            result |= differences(here, there, f"{path}{key}.")
        elif here != there:
            result[path + key] = (here, there)
    return result
