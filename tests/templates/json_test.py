"""json.tmkt: the file is valid whatever a comment says, and holds every topic with its fields."""
import json
import unittest

from program import (AZBUKA, GROUP, NOTHING, ODD, ODD_TOPICS, STOCK, Compile, TemplateTest,
                     topic_names)

TEXTS = {"kind", "module", "name", "description", "remarks", "author", "version", "revision",
         "user1", "user2", "user3", "user4", "user5", "examples", "see"}
DATA = TEXTS | {"scope", "declaration", "source", "return", "values"}
PROCEDURE = DATA | {"parameters", "appliesTo"}
MODULE = TEXTS | {"properties", "methods", "events"}
FIELDS = {"form": MODULE, "object": MODULE, "module": MODULE, "variable": DATA, "constant": DATA,
          "method": PROCEDURE, "function": PROCEDURE, "property": PROCEDURE, "event": PROCEDURE}


def read(project, name, *arguments):
    compiled = Compile(project, "json", *arguments)
    return json.loads((compiled.folder / (name + ".json")).read_bytes().decode("utf-8"))


def topics_of(content):
    return {f"{topic['module']}-{topic['name']}" if "scope" in topic else topic["name"]: topic
            for topic in content["topics"][1:]}


class JsonTest(TemplateTest):
    def test_every_topic_has_all_fields_of_its_kind(self):
        odd = read(ODD, "Odd")
        topics = topics_of(odd)
        self.assertEqual(set(topics), topic_names(ODD_TOPICS))
        self.assertEqual({topic["kind"] for topic in topics.values()}, set(FIELDS))
        for name, topic in topics.items():
            self.assertEqual(set(topic), FIELDS[topic["kind"]], name)
        links = ["-".join(filter(None, (link["module"], link.get("member"))))
                 for link in odd["index"]]
        self.assertEqual(set(links), set(topics))
        numbers = {link["helpId"] for link in odd["index"]}
        self.assertEqual((len(numbers), min(numbers)), (len(topics), 100))
        self.assertEqual(len(topics_of(read(STOCK, "Stock"))), 75)

    def test_texts_arrive_as_they_were_written(self):
        odd = read(ODD, "Odd")
        self.assertEqual(odd["topics"][0]["description"],
                         'Odd & <useful>\n\n"quoted" * \\ {x} for 5 $ in Orléans')
        topics = topics_of(odd)
        run, oddity = topics["Oddity-Run"], topics["Oddity"]
        self.assertEqual(run["declaration"],
                         "Public Function Run(ByVal Kind As Long, Optional ByVal Mode As Long = 0, "
                         'Optional ByVal Third_One As String = "\\{""}") As Boolean')
        self.assertIn('"a & b $5 \x02" \' </pre> ``` {x}\nEnd Function', run["source"])
        self.assertEqual(run["remarks"], "Not before noon: &lt; stays.\n\n A second paragraph.")
        self.assertEqual(run["return"], "True or $.")
        self.assertEqual(run["appliesTo"], ["Oddity"])
        self.assertEqual([(entry["name"], entry["text"].strip()) for entry in run["parameters"]],
                         [("Kind", "What kind. It goes on here,\nand breaks here."),
                          ("Mode", "Which <mode>."), ("Third_One", "")])
        self.assertEqual([tuple(field.strip() for field in value.values())
                          for value in run["values"]],
                         [("Kind", "kdOne", "1", "The first | one."),
                          ("Kind", "kdTwo", '"a b"', "The *second*,    over two lines."),
                          ("Mode", "mdOnly", "0", ""),
                          ("Third_One", "toThis", "&H1F", "Hexadecimal <&>.")])
        self.assertEqual(oddity["see"][0], {"label": ""})
        self.assertEqual([set(link) for link in oddity["see"][2:5]],
                         [{"label", "module", "helpId"}, {"label"}, {"label", "file"}])
        self.assertIn("```vb\n Dim Odd As Oddity\n \n If a < b", oddity["description"])
        self.assertEqual((oddity["author"], oddity["user1"]),
                         ("Zoë & Søn", "First line,\nsecond {line}."))
        self.assertIn("\x01\x07\x1b\x7f", topics["Oddity-Bell"]["return"])
        self.assertEqual(topics_of(read(AZBUKA, "Азбука"))["Склад"]["description"].strip(),
                         "Склад «Юг» – всё, что в нём есть. Цена в €.")

    def test_a_file_without_commands_is_in_the_code_page_that_it_names(self):
        compiled = Compile(AZBUKA, "json", "--no-exec")
        content = json.loads(compiled.text("Азбука.json"))
        self.assertEqual(content["codePage"], "windows-1251")
        self.assertIn("Общее-Предел", topics_of(content))

    def test_projects_without_topics_and_groups_are_valid(self):
        nothing = read(NOTHING, "Nothing")
        self.assertEqual((len(nothing["topics"]), nothing["index"]), (1, []))
        self.assertEqual(read(GROUP, "Group+")["projects"], ["Desk", "Stock"])

    def test_every_run_gives_the_same(self):
        self.check_every_run_gives_the_same("json")


if __name__ == "__main__":
    unittest.main()
