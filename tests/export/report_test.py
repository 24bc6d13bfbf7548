"""Opens the report of an example in a headless browser, without a network, as its readers do.

usage: report_test.py LAGOMARE EXAMPLE.sql

Exits with 77, which CTest takes for skipped, where Chromium, its driver or selenium is not installed.
"""
import json
import os
import pathlib
import shutil
import sqlite3
import subprocess
import sys
import tempfile

try:
    from selenium import webdriver
    from selenium.webdriver.chrome.service import Service
    from selenium.webdriver.common.by import By
    from selenium.webdriver.common.keys import Keys
    from selenium.webdriver.support.ui import WebDriverWait
except ImportError:
    print("skipped: python3-selenium is not installed")
    sys.exit(77)

HOSTILE = "</script><img src=x onerror=\"document.title='taken'\"> 'q' &amp; ]]>"
CHANGES = f"""
update Tk_Res_FEA set Nome = '{HOSTILE.replace("'", "''")}' where NumPonto = 3;
update LgmVazNat set Valor = Valor / 3 where NumPto = 21;
update LgmVazNat set Valor = 1e300 where NumPto = 22 and rowid % 7 = 0;
update LgmVazNat set Valor = -0.000001 where NumPto = 23 and rowid % 5 = 0;
"""
# All series as the page's script unpacks them.
UNPACK = """
const done = arguments[0];
Promise.all(data.elements.map(async (element) => [element.key, await Promise.all(element.series.map(async ([label, state, begin, numbers]) =>
  [...data.serieLabels[label], state, begin, Array.from(await unpack(numbers))]))])).then(done);
"""
FOCUSED = "return document.activeElement.closest('tbody tr')?.dataset.key"
DRAWN = """
const canvas = document.querySelector("#chosen .plot canvas");
return canvas && canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height).data.some((byte) => byte > 0);
"""


def expected_series(scenario):
    def entry(serie, state):
        year, month = map(int, serie["begin"].split("-")[:2])
        return [serie["name"], serie["unit"], state, year * 12 + month - 1, serie["values"]]

    elements = [("node", node) for node in scenario["nodes"]] + [("link", link) for link in scenario["links"]]
    for kind, element in elements:
        states = element.get("settings", {}).get("states", [])
        series = [(0, serie) for serie in element["series"]] + [(i + 1, s["series"]) for i, s in enumerate(states)]
        yield [f"{kind}-{element['id']}", [entry(serie, state) for state, serie in series if serie["begin"]]]


def open_browser(folder):
    options = webdriver.ChromeOptions()
    options.binary_location = shutil.which("chromium")
    for word in ["headless=new", "no-sandbox", "disable-gpu", "disable-quic", "no-first-run", "disable-dev-shm-usage",
                 "disable-background-networking", "disable-component-update", "disable-sync", "window-size=1280,800",
                 "host-resolver-rules=MAP * ~NOTFOUND", f"user-data-dir={folder / 'profile'}"]:
        options.add_argument("--" + word)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    service = Service(shutil.which("chromedriver"), env={**os.environ, "HOME": str(folder)})
    browser = webdriver.Chrome(service=service, options=options)
    browser.execute_cdp_cmd("Network.enable", {})
    browser.execute_cdp_cmd("Network.emulateNetworkConditions",
                            {"offline": True, "latency": 0, "downloadThroughput": 0, "uploadThroughput": 0})
    browser.set_script_timeout(60)
    return browser


def shown_names(browser):
    return browser.execute_script("""
        return [...document.querySelectorAll("#elements tbody tr")]
          .filter((row) => row.getClientRects().length > 0).map((row) => row.querySelector("a").textContent)""")


def check(browser, page, scenario):
    browser.get(page.as_uri())
    title = browser.find_element(By.ID, "chosen-title")
    wait = WebDriverWait(browser, 60)
    wait.until(lambda _: title.text != "Chosen element")
    assert browser.execute_async_script(UNPACK) == list(expected_series(scenario)), "the series differ from the JSON"
    assert len(browser.find_elements(By.CSS_SELECTOR, "svg.network .node")) == len(scenario["nodes"])
    assert len(browser.find_elements(By.CSS_SELECTOR, "svg.network .link")) == len(scenario["links"])

    assert HOSTILE in shown_names(browser), "a name did not stay text"
    assert browser.title.startswith("basin <b>.db") and not browser.find_elements(By.CSS_SELECTOR, "img[src=x]")

    search = browser.find_element(By.CSS_SELECTOR, "input[type=search]")
    for words in ("São", "sao fran"):
        search.clear()
        search.send_keys(words)
        assert shown_names(browser) == ["Foz do São Francisco"], (words, shown_names(browser))
    search.send_keys(Keys.CONTROL, "a", Keys.NULL, "foz do rio")
    assert len(shown_names(browser)) == 5

    search.send_keys(Keys.TAB)
    while not browser.execute_script(FOCUSED):
        browser.switch_to.active_element.send_keys(Keys.TAB)
    browser.switch_to.active_element.send_keys(Keys.ARROW_DOWN)
    browser.switch_to.active_element.send_keys(Keys.ENTER)
    wait.until(lambda _: title.text.startswith("Foz do rio Paracatu"))
    wait.until(lambda _: browser.execute_script(DRAWN))
    assert browser.execute_script(FOCUSED) == "node-22"
    assert browser.get_log("browser") == []


def main(lagomare, example):
    if not shutil.which("chromium") or not shutil.which("chromedriver"):
        print("skipped: Chromium and its driver are not installed")
        return 77
    with tempfile.TemporaryDirectory(prefix="lagomare report é ") as name:
        folder = pathlib.Path(name)
        project = folder / "basin <b>.db"
        with sqlite3.connect(project) as database:
            database.executescript(pathlib.Path(example).read_text(encoding="utf-8") + CHANGES)
        database.close()
        page = folder / "report #1.html"
        output = folder / "scenario.json"
        subprocess.run([lagomare, "import", "--quiet", "--no-check", project, "--html", page, "--json", output], check=True)
        browser = open_browser(folder)
        try:
            check(browser, page, json.loads(output.read_text(encoding="utf-8")))
        finally:
            browser.quit()
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
